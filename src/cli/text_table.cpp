#include "cli/text_table.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString gap = u"  "_s;

QList<qsizetype> Widths(const QList<QStringList> &rows) {
    QList<qsizetype> widths;
    for (const QStringList &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    return widths;
}

} // namespace

QStringList AlignedLines(const QList<QStringList> &rows) {
    const QList<qsizetype> widths = Widths(rows);
    QStringList lines;
    for (const QStringList &row : rows) {
        QStringList cells = row;
        while (!cells.isEmpty() && cells.last().isEmpty())
            cells.removeLast();
        for (qsizetype column = 0; column + 1 < cells.size(); ++column)
            cells[column] = cells[column].leftJustified(widths[column]);
        lines << cells.join(gap);
    }
    return lines;
}

} // namespace lanterra
