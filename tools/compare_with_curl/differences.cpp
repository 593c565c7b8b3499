#include "tools/compare_with_curl/differences.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace lanterra {

Differences::Differences(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const qsizetype colon = line.indexOf(u": "_s);
        if (colon > 0 && !line.startsWith(u'#'))
            reasons.insert(line.left(colon), line.mid(colon + 2));
    }
}

QString Differences::ReasonFor(const QString &way, const QString &page) const {
    return reasons.value(way + u' ' + page, reasons.value(page));
}

} // namespace lanterra
