#pragma once

#include <QList>
#include <QStringList>

namespace lanterra {

/// Rows of cells as lines in which all but the last column have one width, two blanks between columns.
QStringList AlignedLines(const QList<QStringList> &rows);

} // namespace lanterra
