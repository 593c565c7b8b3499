#include "modes/page_template.h"

#include "support/text_file.h"
#include "support/text_template.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString lineEnd = u"\r\n"_s;

PageTemplate::Values RowValues(const QString &row) {
    const QStringList columns = row.split(u'|');
    return {{u"VALUE"_s, columns.first()},
            {u"TEXT"_s, columns.value(1, columns.first())},
            {u"MARK"_s, columns.value(2)}};
}

} // namespace

QStringList ResourceLines(const QString &path) {
    QStringList lines = ReadFileText(path).split(u'\n');
    lines.removeLast();
    return lines;
}

PageTemplate::PageTemplate(const QString &path)
    : folder(path.left(path.lastIndexOf(u'/') + 1)), lines(ResourceLines(path)) {}

QString PageTemplate::Fill(const Values &values, const Switch &isOn) const {
    QString page;
    for (const QString &line : lines) {
        const QString word = line.section(u' ', 0, 0).mid(1);
        const QString record = line.section(u' ', 1);
        if (line.startsWith(u'@'))
            page += FillRows(word, record);
        else if (!line.startsWith(u'?'))
            page += FillTemplate(line, values) + lineEnd;
        else if (!isOn || isOn(word))
            page += FillTemplate(record, values) + lineEnd;
    }
    return page;
}

QString PageTemplate::FillRows(const QString &list, const QString &record) const {
    QString rows;
    for (const QString &row : ResourceLines(folder + list + u".txt"_s))
        rows += FillTemplate(record, RowValues(row)) + lineEnd;
    return rows;
}

} // namespace lanterra
