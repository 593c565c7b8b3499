#include "cli/name_lookup.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

qsizetype IndexOfName(const QStringList &names, const QString &typed) {
    if (const qsizetype exact = names.indexOf(typed); exact >= 0)
        return exact;
    const auto found = std::find_if(names.begin(), names.end(), [&](const QString &name) {
        return name.compare(typed, Qt::CaseInsensitive) == 0;
    });
    return found == names.end() ? -1 : found - names.begin();
}

QString UnknownName(const QString &kind, const QString &typed, const QStringList &names) {
    return u"There is no %1 '%2', but these: %3."_s.arg(kind, typed, names.join(", "_L1));
}

} // namespace lanterra
