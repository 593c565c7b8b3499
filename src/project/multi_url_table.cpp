#include "project/multi_url_table.h"

namespace lanterra {

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

int MultiUrlTable::LastUsedSlot() const {
    int last = slotCount - 1;
    while (last > 0 && Cell(last, urlColumn).isEmpty())
        --last;
    return last;
}

void MultiUrlTable::EraseUrls() {
    for (auto &slot : cells)
        slot[urlColumn].clear();
}

} // namespace lanterra
