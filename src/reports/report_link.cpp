#include "reports/report_link.h"

#include "support/code_page.h"
#include "support/file_names.h"

#include <QList>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QString EncodeForeign(const QString &text) {
    QString encoded;
    for (const char32_t character : text.toUcs4()) {
        const QString one = QString::fromUcs4(&character, 1);
        encoded += CodePage::Holds(character) ? one : QString::fromLatin1(one.toUtf8().toPercentEncoding());
    }
    return encoded;
}

} // namespace

QString ReportLink(const QString &path) {
    return EncodeForeign(PathToFileUrl(path));
}

QString ReportFolderPath(const QString &folder) {
    QString path = QString(folder).replace(u'\\', u'/');
    while (path.endsWith(u'/'))
        path.chop(1);
    while (path.startsWith(u'/'))
        path.remove(0, 1);
    return EncodeForeign(path);
}

} // namespace lanterra
