#include "database/database_file.h"

#include "database/stored_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QStringList QuotedFields(const TableSchema &schema) {
    QStringList names;
    for (const FieldSchema &field : schema.fields)
        names.append(QuotedName(field.name));
    return names;
}

QString SelectSql(const TableSchema &schema) {
    return u"SELECT rowid, %1 FROM %2 ORDER BY rowid"_s.arg(QuotedFields(schema).join(", "_L1),
                                                            QuotedName(schema.name));
}

QString InsertSql(const TableSchema &schema) {
    const QStringList places(schema.fields.size(), u"?"_s);
    return u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(QuotedName(schema.name),
                                                    QuotedFields(schema).join(", "_L1), places.join(", "_L1));
}

QString UpdateSql(const TableSchema &schema, const DatabaseFile::Changes &changes) {
    QStringList places;
    for (const auto &change : changes)
        places.append(QuotedName(schema.fields[change.first].name) + " = ?"_L1);
    return u"UPDATE %1 SET %2 WHERE rowid = ?"_s.arg(QuotedName(schema.name), places.join(", "_L1));
}

TableRows::Row RowOf(const QSqlQuery &query, qsizetype fieldCount) {
    TableRows::Row row{query.value(0).toLongLong(), {}};
    row.values.reserve(fieldCount);
    for (qsizetype field = 0; field < fieldCount; ++field) {
        const QVariant value = FromStoredForm(query.value(static_cast<int>(field) + 1));
        row.values.append(value.isNull() ? QVariant() : value);
    }
    return row;
}

} // namespace

DatabaseFile::DatabaseFile(QString path, SqliteConnection::Mode mode)
    : filePath(std::move(path)), identity(IdentityOf(filePath)),
      connection(std::make_unique<SqliteConnection>(filePath, mode)),
      writable(mode != SqliteConnection::Mode::ReadOnly) {}

DatabaseFile::~DatabaseFile() { CommitWalk(); }

bool DatabaseFile::ReadTables(const DatabaseSchema &wanted) {
    QString refusal = ReadSchema(*connection, schema);
    if (refusal.isEmpty() && !wanted.isEmpty())
        refusal = SchemaDifference(schema, wanted);
    if (refusal.isEmpty())
        refusal = IntegrityRefusal(*connection);
    return refusal.isEmpty() || Fail(refusal);
}

bool DatabaseFile::IsInPlace() const { return IdentityOf(filePath) == identity; }

bool DatabaseFile::MakeWritable() {
    if (writable)
        return true;
    auto other = std::make_unique<SqliteConnection>(filePath, SqliteConnection::Mode::ReadWrite);
    if (!other->Failure().isEmpty())
        return Fail(other->Failure());
    connection = std::move(other);
    writable = true;
    return true;
}

std::shared_ptr<TableRows> DatabaseFile::Load(const QString &table) {
    const auto named = [&table](const TableSchema &candidate) { return candidate.name == table; };
    const auto known = std::find_if(schema.cbegin(), schema.cend(), named);
    if (known == schema.cend()) {
        Fail(u"The database has no table \"%1\"."_s.arg(table));
        return nullptr;
    }
    TableRows::Rows rows;
    if (QSqlQuery *query = connection->Execute(SelectSql(*known))) {
        while (connection->Next(*query))
            rows.push_back(RowOf(*query, known->fields.size()));
    }
    if (!connection->Failure().isEmpty()) {
        Fail(connection->Failure());
        return nullptr;
    }
    std::shared_ptr<TableRows> &shared = tables[table];
    if (!shared)
        shared = std::make_shared<TableRows>(*known);
    shared->Replace(std::move(rows));
    return shared;
}

std::optional<qint64> DatabaseFile::Add(TableRows &table, const Changes &changes) {
    QVariantList values(table.Schema().fields.size());
    for (const auto &[field, value] : changes)
        values[field] = value;
    if (!PrepareToWrite(table))
        return std::nullopt;
    const QSqlQuery *query = Write(InsertSql(table.Schema()), values);
    if (!query)
        return std::nullopt;
    const qint64 id = query->lastInsertId().toLongLong();
    table.Put({id, values});
    return id;
}

bool DatabaseFile::Change(TableRows &table, qint64 id, const Changes &changes) {
    const TableRows::Row *old = table.Find(id);
    if (!old)
        return Fail(u"The row is gone."_s);
    if (changes.empty())
        return true;
    if (!PrepareToWrite(table))
        return false;
    TableRows::Row row = *old;
    QVariantList values;
    for (const auto &[field, value] : changes) {
        row.values[field] = value;
        values.append(value);
    }
    values.append(id);
    const QSqlQuery *query = Write(UpdateSql(table.Schema(), changes), values);
    if (!query)
        return false;
    if (query->numRowsAffected() == 0)
        return Fail(u"The row is gone."_s);
    table.Put(std::move(row));
    return true;
}

bool DatabaseFile::Remove(TableRows &table, qint64 id) {
    const QString sql = u"DELETE FROM %1 WHERE rowid = ?"_s.arg(QuotedName(table.Schema().name));
    if (!PrepareToWrite(table) || !Write(sql, {id}))
        return false;
    table.Remove(id);
    return true;
}

std::shared_ptr<DatabaseFile::Walk> DatabaseFile::BeginWalk() {
    if (!walk)
        walk = std::make_shared<Walk>();
    ++walk->depth;
    return walk;
}

void DatabaseFile::EndWalk() {
    if (--walk->depth > 0)
        return;
    CommitWalk();
    walk.reset();
}

bool DatabaseFile::CommitWalk() {
    if (!walk || !walk->begun)
        return !walk || walk->failure.isEmpty();
    // SQLite looks for a replaced file only when a transaction begins.
    const bool inPlace = IsInPlace();
    if (!inPlace || !connection->Run(u"COMMIT"_s)) {
        UndoWalk(inPlace ? connection->Failure() : u"The file was replaced or removed by another program."_s);
        return false;
    }
    walk->begun = false;
    for (const auto &table : tables)
        table.second->Forget();
    return true;
}

// The transaction opens with the first write, so that a walk which only reads locks nobody out. One lock that
// can't be had fails the whole walk at once: waiting again for each of its rows would freeze the window.
bool DatabaseFile::PrepareToWrite(TableRows &table) {
    if (!walk)
        return true;
    if (!walk->failure.isEmpty())
        return Fail(walk->failure);
    if (!walk->begun && !connection->Run(u"BEGIN IMMEDIATE"_s)) {
        walk->failure = connection->Failure();
        return Fail(walk->failure);
    }
    walk->begun = true;
    table.Remember();
    return true;
}

QSqlQuery *DatabaseFile::Write(const QString &sql, const QVariantList &values) {
    QSqlQuery *query = connection->Execute(sql, values);
    if (query)
        return query;
    Fail(connection->Failure());
    if (walk)
        UndoWalk(failure);
    return nullptr;
}

// SQLite has itself ended the transaction after some failures (a full disk); the statement here then fails,
// and nothing is lost by that.
void DatabaseFile::UndoWalk(const QString &reason) {
    walk->failure = reason;
    walk->begun = false;
    Fail(walk->failure);
    connection->Run(u"ROLLBACK"_s);
    for (const auto &table : tables)
        table.second->Restore();
}

bool DatabaseFile::Fail(const QString &reason) {
    failure = reason;
    return false;
}

} // namespace lanterra
