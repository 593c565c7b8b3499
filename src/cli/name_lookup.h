#pragma once

#include <QStringList>

namespace lanterra {

/// The place of a typed name in a list: that of the same name, else of the first that differs in case alone,
/// else -1.
qsizetype IndexOfName(const QStringList &names, const QString &typed);

/// A sentence that says that a typed name is none of these. `kind` is what they name, such as "engine".
QString UnknownName(const QString &kind, const QString &typed, const QStringList &names);

} // namespace lanterra
