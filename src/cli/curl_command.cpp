#include "cli/curl_command.h"

#include <algorithm>

namespace lanterra {

namespace {

bool IsPlain(char c) { return c >= 0x20 && c != 0x7F; }

QByteArray EscapeQuoted(const QByteArray &value) {
    QByteArray quoted = "$'";
    for (const char c : value) {
        if (!IsPlain(c))
            quoted += "\\x" + QByteArray(1, c).toHex();
        else
            quoted += c == '\'' || c == '\\' ? QByteArray("\\") + c : QByteArray(1, c);
    }
    return quoted + '\'';
}

QByteArray ShellQuoted(QByteArray value) {
    if (!std::all_of(value.begin(), value.end(), IsPlain))
        return EscapeQuoted(value);
    return '\'' + value.replace("'", "'\\''") + '\'';
}

/// The address as the request line holds it: encoded, but without the origin that a proxy wants.
QByteArray Address(const PreviewedRequest &preview) {
    Request plain = preview.request;
    plain.absolute = false;
    const QByteArray resource = RequestLine(plain, preview.address).split(' ').value(1);
    return (preview.address.secure ? "https://" : "http://") + preview.address.HostName().toLatin1() +
           resource;
}

} // namespace

QByteArray CurlCommand(const PreviewedRequest &preview, const QString &proxy) {
    const QByteArray bytes = preview.Bytes();
    const qsizetype headEnd = bytes.indexOf("\r\n\r\n");
    const QByteArray head = bytes.left(headEnd);
    const QByteArray body = bytes.mid(headEnd + 4);
    // curl is kept from changing the address, the protocol and the proxy, and from adding lines of its own.
    QByteArray command =
        "curl --http1.1 --globoff --path-as-is -H 'User-Agent:' -H 'Proxy-Connection:' -H 'Expect:'";
    command += proxy.isEmpty() ? " --noproxy '*'" : " --proxy " + ShellQuoted("http://" + proxy.toLatin1());
    for (qsizetype start = head.indexOf("\r\n") + 2; start > 1 && start < head.size();) {
        const qsizetype end = head.indexOf("\r\n", start);
        command += " -H " + ShellQuoted(head.mid(start, end < 0 ? -1 : end - start));
        start = end < 0 ? head.size() : end + 2;
    }
    if (preview.request.method == "POST") // a body with "@" in front would name a file for --data-binary
        command += (body.startsWith('@') ? " --data-raw " : " --data-binary ") + ShellQuoted(body);
    return command + ' ' + ShellQuoted(Address(preview));
}

} // namespace lanterra
