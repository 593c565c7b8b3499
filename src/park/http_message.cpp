#include "park/http_message.h"

namespace lanterra {

namespace {

// Small enough that the pages of the practice sites come in several chunks.
constexpr qsizetype chunkSize = 700;

BodyFraming FramingFor(const HttpRequest &request, const HttpAnswer &answer) {
    const bool chunksNotKnown = request.minorVersion == 0 && answer.framing == BodyFraming::Chunks;
    return chunksNotKnown ? BodyFraming::Close : answer.framing;
}

void AppendChunks(QByteArray &bytes, const QByteArray &body) {
    for (qsizetype start = 0; start < body.size(); start += chunkSize) {
        const QByteArrayView chunk = QByteArrayView(body).sliced(start, qMin(chunkSize, body.size() - start));
        bytes += QByteArray::number(chunk.size(), 16) + "\r\n";
        bytes += chunk;
        bytes += "\r\n";
    }
    bytes += "0\r\n\r\n";
}

} // namespace

QByteArray HttpRequest::Header(QByteArrayView name) const {
    for (const auto &[key, value] : headers)
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return value;
    return {};
}

bool HttpRequest::WantsKeepAlive() const {
    const QByteArray connection = Header("Connection").toLower();
    return minorVersion == 0 ? connection.contains("keep-alive") : !connection.contains("close");
}

bool KeepsAlive(const HttpRequest &request, const HttpAnswer &answer) {
    return answer.mayKeepAlive && FramingFor(request, answer) != BodyFraming::Close &&
           request.WantsKeepAlive();
}

QByteArray AnswerBytes(const HttpRequest &request, const HttpAnswer &answer) {
    const BodyFraming framing = FramingFor(request, answer);
    QByteArray bytes;
    bytes.reserve(answer.body.size() + answer.extraHeaders.size() + 400);
    bytes += "HTTP/1.1 " + QByteArray::number(answer.status) + ' ' + answer.reason + "\r\n";
    bytes += "Server: Lanterra-Park\r\nContent-Type: " + answer.contentType + "\r\n" + answer.extraHeaders;
    if (framing == BodyFraming::Length)
        bytes += "Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n";
    if (framing == BodyFraming::Chunks)
        bytes += "Transfer-Encoding: chunked\r\n";
    bytes += KeepsAlive(request, answer) ? "Connection: keep-alive\r\n\r\n" : "Connection: close\r\n\r\n";
    if (request.method == "HEAD")
        return bytes;
    if (framing == BodyFraming::Chunks)
        AppendChunks(bytes, answer.body);
    else
        bytes += answer.body;
    return bytes;
}

} // namespace lanterra
