#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace lanterra {

class SqliteConnection;

/// A field of a table, as the table was declared.
struct FieldSchema {
    QString name;
    QString type; ///< in the words of the declaration, such as "VARCHAR(255)"

    /// UTF-16 units that a text may have: the number in the type's parentheses; the largest int without one.
    int MaximumLength() const;

    bool operator==(const FieldSchema &) const = default;
};

/// A table with its fields in declared order.
struct TableSchema {
    QString name;
    QList<FieldSchema> fields;

    /// The place of the field of exactly this name, -1 if there is none.
    int IndexOf(const QString &field) const;

    bool operator==(const TableSchema &) const = default;
};

using DatabaseSchema = QList<TableSchema>;

/// Reads the tables of a database, sorted by name, into `schema`. Returns why the database is refused, one
/// sentence, else an empty text. Refused is all that could act by itself or has no rows in stored order:
/// views, triggers, virtual tables, tables with a primary key or with generated fields.
QString ReadSchema(SqliteConnection &connection, DatabaseSchema &schema);

/// Why the tables are not exactly the wanted ones, one sentence; empty if they are.
QString SchemaDifference(const DatabaseSchema &schema, const DatabaseSchema &wanted);

/// The tables that these CREATE TABLE statements make. Empty if one of them fails.
DatabaseSchema SchemaOf(const QStringList &statements);

} // namespace lanterra
