#include "project/multi_url_table.h"

#include <algorithm>

namespace lanterra {

namespace {

constexpr qsizetype longestIgnored = 10; ///< characters that make no address yet

} // namespace

bool MultiUrlTable::Holds(int slot, int column) {
    return slot >= 0 && slot < slotCount && column >= 0 && column < columnCount;
}

QString MultiUrlTable::Cell(int slot, int column) const {
    if (!Holds(slot, column))
        return {};
    return cells[static_cast<std::size_t>(slot)][static_cast<std::size_t>(column)];
}

void MultiUrlTable::SetCell(int slot, int column, const QString &text) {
    if (Holds(slot, column))
        cells[static_cast<std::size_t>(slot)][static_cast<std::size_t>(column)] = text;
}

int MultiUrlTable::UrlCount() const {
    return static_cast<int>(std::count_if(cells.begin(), cells.end(), [](const auto &slot) {
        return slot[urlColumn].size() > longestIgnored;
    }));
}

void MultiUrlTable::EraseUrls() {
    for (auto &slot : cells)
        slot[urlColumn].clear();
}

} // namespace lanterra
