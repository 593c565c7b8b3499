#include "database/table_rows.h"

#include <algorithm>

namespace lanterra {

namespace {

constexpr auto isBefore = [](const TableRows::Row &row, qint64 id) { return row.id < id; };

} // namespace

const TableRows::Row *TableRows::Find(qint64 id) const {
    const auto place = std::lower_bound(rows.cbegin(), rows.cend(), id, isBefore);
    return place != rows.cend() && place->id == id ? &*place : nullptr;
}

const TableRows::Row *TableRows::At(qsizetype place) const {
    return place >= 0 && place < Count() ? &rows[static_cast<std::size_t>(place)] : nullptr;
}

const TableRows::Row *TableRows::Behind(qint64 id) const {
    const auto isBehind = [](qint64 number, const Row &row) { return number < row.id; };
    const auto place = std::upper_bound(rows.cbegin(), rows.cend(), id, isBehind);
    return place != rows.cend() ? &*place : nullptr;
}

void TableRows::Put(Row row) {
    const auto place = std::lower_bound(rows.begin(), rows.end(), row.id, isBefore);
    if (place != rows.end() && place->id == row.id)
        *place = std::move(row);
    else
        rows.insert(place, std::move(row));
}

void TableRows::Remove(qint64 id) {
    const auto place = std::lower_bound(rows.cbegin(), rows.cend(), id, isBefore);
    if (place != rows.cend() && place->id == id)
        rows.erase(place);
}

void TableRows::Remember() {
    if (!remembered)
        remembered = rows;
}

void TableRows::Restore() {
    if (remembered)
        rows = std::move(*remembered);
    remembered.reset();
}

} // namespace lanterra
