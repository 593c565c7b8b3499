#pragma once

#include <QStringList>

namespace lanterra {

/// The place of a typed name in a list: that of the same name, else of the first that differs in case alone,
/// else -1.
qsizetype IndexOfName(const QStringList &names, const QString &typed);

} // namespace lanterra
