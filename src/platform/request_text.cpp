#include "platform/request_text.h"

#include "support/code_page.h"
#include "support/percent_encode.h"

#include <QList>
#include <algorithm>

namespace lanterra {

namespace {

constexpr char lineEnd[] = "\r\n";

bool IsOutsideRequestLine(char c) { return IsControl(c) || c == ' ' || static_cast<unsigned char>(c) > 127; }

// In a path the code page's "?" for a foreign character would begin the query, so such a character goes out
// as UTF-8. The query is form data and follows the code page, as a body does.
QByteArray EncodePath(const QString &path) {
    QByteArray bytes;
    for (const uint c : path.toUcs4()) {
        const auto character = static_cast<char32_t>(c);
        const QString text = QString::fromUcs4(&character, 1);
        bytes += CodePage::Holds(character) ? CodePage::Encode(text) : text.toUtf8();
    }
    return bytes;
}

QByteArray EncodeResource(const QString &resource) {
    const qsizetype pathEnd = resource.indexOf(u'?');
    if (pathEnd < 0)
        return PercentEncode(EncodePath(resource), IsOutsideRequestLine);
    return PercentEncode(EncodePath(resource.left(pathEnd)) + CodePage::Encode(resource.mid(pathEnd)),
                         IsOutsideRequestLine);
}

// Only the first occurrence: it stands in the headers, and a body behind them goes out as it is.
QByteArray WithoutBrokenLines(QByteArray headers, const QByteArray &target) {
    const qsizetype at = headers.indexOf(target);
    if (at < 0 || std::none_of(target.begin(), target.end(), IsControl))
        return headers;
    return headers.replace(at, target.size(), PercentEncode(target, IsControl));
}

bool HasLine(const QByteArray &headerLines, const QByteArray &name) {
    const QByteArray lines = '\n' + headerLines.toLower();
    return lines.contains('\n' + name + ':');
}

QByteArray WithEmptyLine(const QByteArray &headers) {
    if (headers.contains("\r\n\r\n") || headers.startsWith(lineEnd))
        return headers;
    if (headers.isEmpty() || headers.endsWith(lineEnd))
        return headers + lineEnd;
    return headers + lineEnd + lineEnd;
}

} // namespace

QByteArray RequestLine(const Request &request, const TargetAddress &address) {
    const QByteArray origin = request.absolute
                                  ? (address.secure ? "https://" : "http://") + address.HostName().toLatin1()
                                  : QByteArray();
    return request.method + ' ' + origin + EncodeResource(address.resource) + " HTTP/1.1";
}

QByteArray RequestText(const Request &request, const TargetAddress &address) {
    const QByteArray headers =
        WithEmptyLine(WithoutBrokenLines(request.headers, CodePage::Encode(request.target)));
    const QByteArray lines =
        headers.startsWith(lineEnd) ? QByteArray() : headers.left(headers.indexOf("\r\n\r\n"));
    QByteArray text = RequestLine(request, address) + lineEnd;
    if (!HasLine(lines, "host"))
        text += "Host: " + address.HostName().toLatin1() + lineEnd;
    if (request.method == "POST" && !HasLine(lines, "content-type"))
        text += QByteArray("Content-Type: application/x-www-form-urlencoded") + lineEnd;
    return text + headers;
}

} // namespace lanterra
