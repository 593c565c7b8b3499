#pragma once

#include <QString>
#include <array>

namespace lanterra {

/// The pages of a project with several URLs: ten slots of nine texts.
class MultiUrlTable {
public:
    static constexpr int slotCount = 10;
    static constexpr int columnCount = 9;
    static constexpr int urlColumn = 0;
    static constexpr int titleColumn = 1;
    static constexpr int descColumn = 2;
    static constexpr int firstKeyColumn = 3;

    /// The empty text outside the table.
    QString Cell(int slot, int column) const;

    /// A cell outside the table is passed over, so an eleventh URL is dropped and not refused.
    void SetCell(int slot, int column, const QString &text);

    /// The number of slots whose URL has more than ten characters, wherever they stand.
    int UrlCount() const;

    /// Empties the URLs of all slots and keeps their other texts.
    void EraseUrls();
    void Erase() { cells = {}; }

private:
    static bool Holds(int slot, int column);

    std::array<std::array<QString, columnCount>, slotCount> cells;
};

} // namespace lanterra
