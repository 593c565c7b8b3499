#include "cli/page_output.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lanterra {

Outcome PrintPage(const CommandCall &call, const QString &path, bool written) {
    if (!written)
        return Outcome::Failed(u"%1 could not be written."_s.arg(path));
    if (call.options.isSet(u"json"_s))
        call.console.PrintJson(QJsonDocument(QJsonObject{{u"page"_s, path}}));
    else
        call.console.Print(path);
    return {};
}

} // namespace lanterra
