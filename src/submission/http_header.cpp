#include "submission/http_header.h"

#include <QStringList>
#include <array>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QString ClassOfStatus(int status) {
    static const std::array classes{u"Informational"_s, u"Success"_s, u"Redirection"_s, u"Client Error"_s,
                                    u"Server Error"_s};
    const int index = status / 100 - 1;
    return status >= 100 && status < 600 ? classes.at(static_cast<std::size_t>(index)) : QString();
}

QString FirstValue(const QStringList &lines, QLatin1StringView name) {
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const qsizetype colon = lines[i].indexOf(u':');
        if (colon < 0 || QStringView(lines[i]).left(colon).trimmed().compare(name, Qt::CaseInsensitive) != 0)
            continue;
        QString value = lines[i].mid(colon + 1).trimmed();
        while (++i < lines.size() && (lines[i].startsWith(u' ') || lines[i].startsWith(u'\t')))
            value += u' ' + lines[i].trimmed();
        return value;
    }
    return {};
}

} // namespace

void HttpHeader::Parse() {
    QString text = rawHeader;
    text.replace("\r\n"_L1, "\n"_L1);
    QStringList lines = text.left(text.indexOf("\n\n"_L1)).split(u'\n');
    ReadStatusLine(lines.takeFirst());
    locationValue = FirstValue(lines, "Location"_L1);
}

void HttpHeader::ReadStatusLine(const QString &line) {
    statusText = line.section(u' ', 1, -1, QString::SectionSkipEmpty).trimmed();
    bool isNumber = false;
    const int number = statusText.simplified().section(u' ', 0, 0).toInt(&isNumber);
    const bool isStatusLine =
        isNumber && statusText.at(0).isDigit() && line.startsWith("HTTP/"_L1, Qt::CaseInsensitive);
    statusCode = isStatusLine ? std::optional(number) : std::nullopt;
    statusClass = isStatusLine ? ClassOfStatus(number) : QString();
}

} // namespace lanterra
