#pragma once

#include "database/table_schema.h"

#include <QVariant>
#include <deque>
#include <optional>

namespace lanterra {

/// The rows of one table in memory, in stored order, shared by all data controls on it. A row keeps its
/// number for life, so a control that stands on one can tell that it has vanished.
class TableRows {
public:
    struct Row {
        qint64 id;
        QVariantList values; ///< one for each field; an invalid value for NULL
    };
    using Rows = std::deque<Row>;

    explicit TableRows(TableSchema tableSchema) : schema(std::move(tableSchema)) {}

    const TableSchema &Schema() const { return schema; }
    int Count() const { return static_cast<int>(rows.size()); }
    void Replace(Rows newRows) { rows = std::move(newRows); }

    /// The row of this number, nothing if there is none.
    const Row *Find(qint64 id) const;
    /// The row at a place counted from 0, nothing outside the table.
    const Row *At(qsizetype place) const;
    /// The first row behind this number.
    const Row *Behind(qint64 id) const;

    /// Puts the row in its place, over an old one of the same number.
    void Put(Row row);
    void Remove(qint64 id);

    /// Keeps the present rows until Restore or Forget; a second call before that does nothing.
    void Remember();
    void Restore();
    void Forget() { remembered.reset(); }

private:
    TableSchema schema;
    Rows rows; ///< rising by number
    std::optional<Rows> remembered;
};

} // namespace lanterra
