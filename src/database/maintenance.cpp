#include "database/maintenance.h"

#include "database/sqlite_connection.h"
#include "database/sqlite_file_check.h"
#include "support/whole_file.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString notWritten = u"The file could not be written; the disk may be full or write-protected."_s;

/// Brings a database back to its state before a write that was cut off, so that no journal is left; one whose
/// database is gone is deleted. False if one is left, in use or beside a file that is no database.
bool PlayBackJournal(const QString &path) {
    if (!QFileInfo::exists(path))
        QFile::remove(JournalOf(path));
    if (HasJournal(path) && SqliteFileRefusal(path).isEmpty()) {
        SqliteConnection connection(path, SqliteConnection::Mode::ReadWrite);
        DatabaseSchema schema;
        ReadSchema(connection, schema);
    }
    return !HasJournal(path);
}

/// A number that changes with each commit that another connection makes. Nothing if the file can't be read.
std::optional<qint64> DataVersion(SqliteConnection &connection) {
    QSqlQuery *query = connection.Execute(u"PRAGMA data_version"_s);
    if (!query || !connection.Next(*query))
        return {};
    const qint64 version = query->value(0).toLongLong();
    query->finish();
    return version;
}

/// An empty file beside another one, under its name and a suffix, where a database grows before it takes that
/// one's place.
class ScratchFile {
public:
    explicit ScratchFile(const QString &target) : targetPath(target), file(target) {
        if (file.open())
            file.close();
    }
    ~ScratchFile() { QFile::remove(JournalOf(Path())); }
    Q_DISABLE_COPY_MOVE(ScratchFile)

    QString Path() const { return file.fileName(); }

    /// A journal beside the target belongs to the file that is there now: a new one must not come under it.
    bool TakePlace() { return PlayBackJournal(targetPath) && CopyWholeFile(Path(), targetPath); }

private:
    QString targetPath;
    QTemporaryFile file;
};

bool IsSound(const QString &path) {
    if (!SqliteFileRefusal(path).isEmpty())
        return false;
    SqliteConnection connection(path, SqliteConnection::Mode::ReadWrite);
    DatabaseSchema schema;
    return ReadSchema(connection, schema).isEmpty() && IntegrityRefusal(connection).isEmpty();
}

bool CopyDeclarations(SqliteConnection &from, SqliteConnection &to, const QString &type) {
    QSqlQuery *query = from.Execute(
        u"SELECT sql FROM sqlite_schema WHERE type = ? AND sql IS NOT NULL AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'"_s,
        {type});
    bool copied = query != nullptr;
    while (copied && from.Next(*query))
        copied = to.Run(query->value(0).toString());
    return copied && from.Failure().isEmpty();
}

QString FieldList(const TableSchema &table) {
    QStringList fields{u"rowid"_s};
    for (const FieldSchema &field : table.fields)
        fields.append(QuotedName(field.name));
    return fields.join(", "_L1);
}

/// Copies rows, the ones with the numbers from 0 up or those from the highest down, until one can't be read
/// or is there already. False if a row could not be written.
bool CopyRows(SqliteConnection &from, SqliteConnection &to, const TableSchema &table, const QString &order) {
    const QString name = QuotedName(table.name);
    const QStringList places(table.fields.size() + 1, u"?"_s);
    const QString insert =
        u"INSERT OR IGNORE INTO %1 (%2) VALUES (%3)"_s.arg(name, FieldList(table), places.join(u','));
    QSqlQuery *query =
        from.Execute(u"SELECT %1 FROM %2 ORDER BY rowid %3"_s.arg(FieldList(table), name, order));
    while (query && from.Next(*query)) {
        QVariantList values;
        for (int place = 0; place < places.size(); ++place)
            values.append(query->value(place));
        const QSqlQuery *written = to.Execute(insert, values);
        if (!written)
            return false;
        if (written->numRowsAffected() == 0)
            break;
    }
    if (query)
        query->finish();
    return true;
}

/// What lies before the damage is read forwards, what lies behind it backwards.
bool CopyReadableRows(SqliteConnection &from, SqliteConnection &to, const DatabaseSchema &schema) {
    return std::all_of(schema.cbegin(), schema.cend(), [&](const TableSchema &table) {
        return CopyRows(from, to, table, u"ASC"_s) &&
               (from.Failure().isEmpty() || CopyRows(from, to, table, u"DESC"_s));
    });
}

bool Rebuild(const QString &path, const QString &scratchPath) {
    SqliteConnection from(path, SqliteConnection::Mode::ReadWrite);
    SqliteConnection to(scratchPath, SqliteConnection::Mode::Scratch);
    DatabaseSchema schema;
    // The lock keeps others out, so that a row which can't be read is a damaged one and not one in use.
    if (!from.Run(u"BEGIN IMMEDIATE"_s) || !ReadSchema(from, schema).isEmpty() || schema.isEmpty())
        return false;
    return to.Run(u"BEGIN"_s) && CopyDeclarations(from, to, u"table"_s) &&
           CopyReadableRows(from, to, schema) && CopyDeclarations(from, to, u"index"_s) &&
           to.Run(u"COMMIT"_s);
}

/// Returns why the copy could not be made, with what stood at `destination` still there.
QString Compact(SqliteConnection &connection, const QString &destination) {
    if (QString refusal = IntegrityRefusal(connection); !refusal.isEmpty())
        return refusal;
    ScratchFile scratch(destination);
    if (!connection.Run(u"VACUUM INTO ?"_s, {scratch.Path()}))
        return connection.Failure();
    return scratch.TakePlace() ? QString() : notWritten;
}

/// Copies the bytes of a database while its lock keeps others from writing. Returns why that failed.
QString CopyWhileLocked(const QString &source, const QString &copy) {
    SqliteConnection connection(source, SqliteConnection::Mode::ReadWrite);
    DatabaseSchema schema;
    if (!connection.Run(u"BEGIN"_s))
        return connection.Failure();
    if (QString refusal = ReadSchema(connection, schema); !refusal.isEmpty())
        return refusal;
    if (QString refusal = IntegrityRefusal(connection); !refusal.isEmpty())
        return refusal;
    return CopyWholeFile(source, copy) ? QString() : notWritten;
}

} // namespace

bool CreateDatabase(const QString &path, const QStringList &statements, const DatabaseFiller &fill) {
    ScratchFile scratch(path);
    {
        SqliteConnection connection(scratch.Path(), SqliteConnection::Mode::Scratch);
        const auto run = [&connection](const QString &statement) { return connection.Run(statement); };
        if (!std::all_of(statements.cbegin(), statements.cend(), run))
            return false;
    }
    return (!fill || fill(scratch.Path())) && scratch.TakePlace();
}

QString CompactThroughBackup(const QString &path, const QString &backup, const DatabaseSchema &wanted) {
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (QString refusal = SqliteFileRefusal(canonical); !refusal.isEmpty())
        return refusal;
    SqliteConnection connection(canonical, SqliteConnection::Mode::ReadWrite);
    const std::optional<qint64> version = DataVersion(connection);
    if (!version)
        return connection.Failure();
    DatabaseSchema schema;
    if (QString refusal = ReadSchema(connection, schema); !refusal.isEmpty())
        return refusal;
    if (QString difference = SchemaDifference(schema, wanted); !difference.isEmpty())
        return difference;
    if (QString failure = Compact(connection, backup); !failure.isEmpty())
        return failure;
    // What takes the place of a project must be sound, also on a disk that keeps its bytes badly.
    if (!RepairDatabase(backup))
        return u"The compacted copy is damaged."_s;
    // Whoever waits for the lock finds the file replaced, and is told so instead of writing into the old one.
    if (!connection.Run(u"BEGIN EXCLUSIVE"_s))
        return connection.Failure();
    if (DataVersion(connection) != version)
        return u"Another program has changed the file meanwhile."_s;
    return CopyWholeFile(backup, canonical) ? QString() : notWritten;
}

QString CopyDatabase(const QString &source, const QString &destination, const DatabaseChange &change) {
    const QString path = QFileInfo(source).canonicalFilePath();
    if (QString refusal = SqliteFileRefusal(path); !refusal.isEmpty())
        return refusal;
    ScratchFile scratch(destination);
    if (QString failure = CopyWhileLocked(path, scratch.Path()); !failure.isEmpty())
        return failure;
    if (QString failure = change ? change(scratch.Path()) : QString(); !failure.isEmpty())
        return failure;
    return scratch.TakePlace() ? QString() : notWritten;
}

bool RepairDatabase(const QString &path) {
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (IsSound(canonical))
        return true;
    ScratchFile scratch(canonical);
    return Rebuild(canonical, scratch.Path()) && IsSound(scratch.Path()) && scratch.TakePlace();
}

} // namespace lanterra
