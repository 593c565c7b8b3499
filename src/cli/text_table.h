#pragma once

#include <QList>
#include <QStringList>

namespace lanterra {

/// Rows of cells as lines in which all but the last column have one width, two blanks between columns. Empty
/// cells at the end of a row leave no blanks there.
QStringList AlignedLines(const QList<QStringList> &rows);

} // namespace lanterra
