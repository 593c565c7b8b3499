#include "database/table_schema.h"

#include "database/sqlite_connection.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// Views, triggers and virtual tables have no page of their own. They are looked for before anything else asks
// for the fields of a table, because that would already unfold a view or load a virtual table.
constexpr auto activeObjects =
    "SELECT name FROM sqlite_schema WHERE type NOT IN ('table', 'index') OR ifnull(rootpage, 0) = 0 LIMIT 1"_L1;

constexpr auto fieldsOfTables =
    "SELECT tables.name, tables.type = 'table' AND NOT tables.wr AND NOT fields.pk AND NOT fields.hidden,"
    " fields.name, fields.type"
    " FROM pragma_table_list AS tables, pragma_table_xinfo(tables.name) AS fields"
    " WHERE tables.schema = 'main' AND tables.name NOT LIKE 'sqlite\\_%' ESCAPE '\\'"
    " ORDER BY tables.name, fields.cid"_L1;

QString ActiveObjectRefusal(SqliteConnection &connection) {
    QSqlQuery *query = connection.Execute(activeObjects);
    if (!query)
        return connection.Failure();
    const bool found = connection.Next(*query);
    query->finish();
    return found ? u"The database holds more than plain tables."_s : connection.Failure();
}

} // namespace

int FieldSchema::MaximumLength() const {
    const qsizetype open = type.indexOf(u'(');
    bool isNumber = false;
    const int length = type.sliced(open + 1).chopped(type.endsWith(u')') ? 1 : 0).toInt(&isNumber);
    return open >= 0 && isNumber ? length : std::numeric_limits<int>::max();
}

int TableSchema::IndexOf(const QString &field) const {
    const auto named = [&field](const FieldSchema &candidate) { return candidate.name == field; };
    const auto found = std::find_if(fields.cbegin(), fields.cend(), named);
    return found == fields.cend() ? -1 : static_cast<int>(found - fields.cbegin());
}

QString ReadSchema(SqliteConnection &connection, DatabaseSchema &schema) {
    schema.clear();
    if (QString refusal = ActiveObjectRefusal(connection); !refusal.isEmpty())
        return refusal;
    QSqlQuery *query = connection.Execute(fieldsOfTables);
    if (!query)
        return connection.Failure();
    bool plain = true;
    while (connection.Next(*query)) {
        const QString table = query->value(0).toString();
        plain = plain && query->value(1).toBool();
        if (schema.isEmpty() || schema.last().name != table)
            schema.append({table, {}});
        schema.last().fields.append({query->value(2).toString(), query->value(3).toString()});
    }
    return plain ? connection.Failure() : u"The database holds more than plain tables."_s;
}

QString SchemaDifference(const DatabaseSchema &schema, const DatabaseSchema &wanted) {
    for (const TableSchema &table : wanted) {
        const auto named = [&table](const TableSchema &candidate) { return candidate.name == table.name; };
        const auto found = std::find_if(schema.cbegin(), schema.cend(), named);
        if (found == schema.cend())
            return u"The database has no table \"%1\"."_s.arg(table.name);
        if (*found != table)
            return u"The fields of table \"%1\" are not the expected ones."_s.arg(table.name);
    }
    return schema.size() == wanted.size() ? QString() : u"The database has unexpected tables."_s;
}

DatabaseSchema SchemaOf(const QStringList &statements) {
    SqliteConnection memory;
    const auto run = [&memory](const QString &statement) { return memory.Run(statement); };
    DatabaseSchema schema;
    if (std::all_of(statements.cbegin(), statements.cend(), run))
        ReadSchema(memory, schema);
    return schema;
}

} // namespace lanterra
