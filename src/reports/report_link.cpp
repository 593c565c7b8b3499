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
        if (CodePage::Holds(character)) // all of the page lies in the first plane
            encoded += QChar(static_cast<char16_t>(character));
        else
            encoded += QString::fromLatin1(QString::fromUcs4(&character, 1).toUtf8().toPercentEncoding());
    }
    return encoded;
}

} // namespace

QString ReportLink(const QString &path) { return EncodeForeign(PathToFileUrl(path)); }

QString ReportFolderPath(const QString &folder) {
    QString path = QString(folder).replace(u'\\', u'/');
    while (path.endsWith(u'/'))
        path.chop(1);
    while (path.startsWith(u'/'))
        path.remove(0, 1);
    return EncodeForeign(path);
}

} // namespace lanterra
