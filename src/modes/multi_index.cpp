#include "modes/multi_index.h"

#include "reports/date_texts.h"
#include "reports/report_link.h"
#include "support/product.h"
#include "support/text_file.h"
#include "support/text_template.h"

using namespace Qt::StringLiterals;

namespace lanterra {

QString MultiIndexPage(const MultiUrlTable &urls, int upperSlot, const QStringList &reportFiles,
                       const QDateTime &now) {
    const QHash<QString, QString> values{{u"DATE"_s, ShortDate(now)},
                                         {u"YEAR"_s, QString::number(now.date().year())},
                                         {u"PRODUCT"_s, ProductAddress()},
                                         {u"VERSION"_s, VersionCaption()}};
    QStringList lines;
    for (const QString &line : ReadFileText(u":/modes/multi_index.txt"_s).split(u'\n')) {
        if (!line.startsWith("@ "_L1)) {
            lines << FillTemplate(line, values);
            continue;
        }
        for (int i = 0; i <= upperSlot; ++i)
            lines << FillTemplate(line.mid(2), {{u"HREF"_s, ReportLink(reportFiles.value(i))},
                                                {u"URL"_s, urls.Cell(i, MultiUrlTable::urlColumn)}});
    }
    return lines.join("\r\n"_L1);
}

} // namespace lanterra
