#include "database/sqlite_connection.h"

#include "database/stored_text.h"

#include <QDir>
#include <QSqlDatabase>
#include <QSqlError>
#include <QUrl>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// Short enough that a step which meets two locks, one behind the other, still ends within 200 ms.
constexpr auto connectOptions = "QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=80"_L1;

// Result codes of SQLite, from "Result and Error Codes" of that project. The low byte names the kind.
constexpr int kindOfCode = 0xff;
constexpr int busyCode = 5;
constexpr int lockedCode = 6;
constexpr int readOnlyCode = 8;
constexpr int movedCode = 1032; ///< of the kind read-only: the name leads to another file by now, or to none
constexpr int inputOutputCode = 10;
constexpr int corruptCode = 11;
constexpr int fullCode = 13;
constexpr int cantOpenCode = 14;
constexpr int notADatabaseCode = 26;

// As an address, so that the mode can be told: the driver itself would create a missing file.
QString Address(const QString &path, SqliteConnection::Mode mode) {
    const auto access = mode == SqliteConnection::Mode::ReadOnly ? "?mode=ro"_L1 : "?mode=rw"_L1;
    return QString::fromLatin1(QUrl::fromLocalFile(QDir::cleanPath(path)).toEncoded(QUrl::FullyEncoded)) +
           access;
}

QString Sentence(const QSqlError &error) {
    const int code = error.nativeErrorCode().toInt();
    switch (code & kindOfCode) {
    case busyCode:
    case lockedCode:
        return u"The file is in use by another program."_s;
    case readOnlyCode:
        return code == movedCode ? u"The file was replaced or removed by another program."_s
                                 : u"The file or its folder is write-protected."_s;
    case inputOutputCode:
        return u"The disk reports an error."_s;
    case corruptCode:
        return u"The database is damaged."_s;
    case fullCode:
        return u"The disk is full."_s;
    case cantOpenCode:
        return u"The file, or a journal beside it, can't be opened."_s;
    case notADatabaseCode:
        return u"The file is no database."_s;
    default:
        return u"The database reports: %1."_s.arg(error.databaseText());
    }
}

} // namespace

SqliteConnection::SqliteConnection(const QString &path, Mode mode)
    : connectionName(QUuid::createUuid().toString()) {
    // An address without a path would name a file of the current folder.
    if (path.isEmpty()) {
        failure = u"No file is named."_s;
        return;
    }
    Open(Address(path, mode));
    if (mode != Mode::Scratch)
        return;
    Run(u"PRAGMA synchronous = OFF"_s);
    if (QSqlQuery *query = Execute(u"PRAGMA journal_mode = MEMORY"_s))
        query->finish();
}

SqliteConnection::SqliteConnection() : connectionName(QUuid::createUuid().toString()) { Open(u":memory:"_s); }

SqliteConnection::~SqliteConnection() {
    statements.clear();
    QSqlDatabase::removeDatabase(connectionName);
}

void SqliteConnection::Open(const QString &name) {
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, connectionName);
    database.setDatabaseName(name);
    database.setConnectOptions(connectOptions);
    if (!database.open()) {
        Accept(database.lastError());
        return;
    }
    // The first of them reads the file: one that is locked is waited for here and not a second time.
    if (!Run(u"PRAGMA synchronous = FULL"_s)) {
        statements.clear();
        database.close();
        return;
    }
    Run(u"PRAGMA trusted_schema = OFF"_s);
    Run(u"PRAGMA cell_size_check = ON"_s);
}

QSqlQuery *SqliteConnection::Prepared(const QString &sql) {
    if (const auto known = statements.find(sql); known != statements.end())
        return &known->second;
    const QSqlDatabase database = QSqlDatabase::database(connectionName, false);
    if (!database.isOpen())
        return nullptr; // the failure of the opening stands
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.prepare(sql)) {
        Accept(query.lastError());
        return nullptr;
    }
    return &statements.emplace(sql, std::move(query)).first->second;
}

QSqlQuery *SqliteConnection::Execute(const QString &sql, const QVariantList &values) {
    QSqlQuery *query = Prepared(sql);
    if (!query)
        return nullptr;
    for (qsizetype place = 0; place < values.size(); ++place)
        query->bindValue(static_cast<int>(place), StoredForm(values[place]));
    query->exec();
    return Accept(query->lastError()) ? query : nullptr;
}

bool SqliteConnection::Next(QSqlQuery &query) {
    const bool here = query.next();
    Accept(query.lastError());
    return here;
}

bool SqliteConnection::Accept(const QSqlError &error) {
    failure = error.isValid() ? Sentence(error) : QString();
    return failure.isEmpty();
}

QString IntegrityRefusal(SqliteConnection &connection) {
    QSqlQuery *query = connection.Execute(u"PRAGMA quick_check(1)"_s);
    if (!query)
        return connection.Failure();
    const bool passes = connection.Next(*query) && query->value(0).toString() == "ok"_L1;
    query->finish();
    if (passes)
        return {};
    return connection.Failure().isEmpty() ? u"The database is damaged."_s : connection.Failure();
}

QString QuotedName(const QString &name) { return u'"' + QString(name).replace(u'"', "\"\""_L1) + u'"'; }

} // namespace lanterra
