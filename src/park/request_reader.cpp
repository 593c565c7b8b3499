#include "park/request_reader.h"

#include <algorithm>

namespace lanterra {

namespace {

bool IsTokenCharacter(char c) {
    return c > ' ' && c < 127 && !QByteArrayView("()<>@,;:\\\"/[]?={}").contains(c);
}

bool IsToken(QByteArrayView text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), IsTokenCharacter);
}

bool IsControl(char c) { return (c >= 0 && c < ' ' && c != '\t') || c == 127; }

// A request that goes through a proxy names the whole address; the practice web answers it as its own.
QByteArray WithoutOrigin(const QByteArray &target) {
    if (!target.startsWith("http://"))
        return target;
    const qsizetype slash = target.indexOf('/', 7);
    return slash < 0 ? QByteArray("/") : target.mid(slash);
}

} // namespace

RequestReader::State RequestReader::Add(const QByteArray &bytes) {
    if (refusal != 0)
        return State::Refused;
    buffer += bytes;
    if (!headDone && !ReadHead())
        return refusal != 0 ? State::Refused : State::NeedsMore;
    return buffer.size() - position < bodyLength ? State::NeedsMore : State::Complete;
}

HttpRequest RequestReader::TakeRequest() {
    request.body = buffer.mid(position, bodyLength);
    HttpRequest taken = std::exchange(request, {});
    buffer.remove(0, position + bodyLength);
    position = 0;
    scanned = 0;
    bodyLength = 0;
    headDone = false;
    return taken;
}

// True once the empty line behind the headers was read.
bool RequestReader::ReadHead() {
    while (!headDone) {
        const qsizetype end = buffer.indexOf('\n', scanned);
        if ((end < 0 ? buffer.size() : end) >= headLimit)
            return Refuse(431);
        if (end < 0) {
            scanned = buffer.size();
            return false;
        }
        QByteArrayView line = QByteArrayView(buffer).sliced(position, end - position);
        if (line.endsWith('\r'))
            line.chop(1);
        position = scanned = end + 1;
        if (!ReadLine(line))
            return false;
    }
    return true;
}

bool RequestReader::ReadLine(QByteArrayView line) {
    if (!HasRequestLine())
        return line.isEmpty() || ReadRequestLine(line);
    return line.isEmpty() ? EndHead() : ReadHeader(line);
}

bool RequestReader::ReadRequestLine(QByteArrayView line) {
    const QList<QByteArray> words = line.toByteArray().split(' ');
    if (words.size() != 3 || !IsToken(words[0]) || words[1].isEmpty() ||
        std::any_of(line.begin(), line.end(), IsControl) || !words[2].startsWith("HTTP/"))
        return Refuse(400);
    if (words[2] != "HTTP/1.1" && words[2] != "HTTP/1.0")
        return Refuse(505);
    request.method = words[0];
    request.target = words[1];
    request.minorVersion = words[2].endsWith('1') ? 1 : 0;
    const QByteArray local = WithoutOrigin(request.target);
    const qsizetype mark = local.indexOf('?');
    request.path = mark < 0 ? local : local.left(mark);
    request.query = mark < 0 ? QByteArray() : local.mid(mark + 1);
    return true;
}

bool RequestReader::ReadHeader(QByteArrayView line) {
    if (request.headers.size() >= headerCountLimit)
        return Refuse(431);
    const qsizetype colon = line.indexOf(':');
    if (colon < 0 || !IsToken(line.first(colon)))
        return Refuse(400);
    const QByteArrayView value = line.sliced(colon + 1).trimmed();
    if (std::any_of(value.begin(), value.end(), IsControl))
        return Refuse(400);
    request.headers.emplaceBack(line.first(colon).toByteArray(), value.toByteArray());
    return true;
}

bool RequestReader::EndHead() {
    headDone = true;
    return ReadBodyLength();
}

bool RequestReader::ReadBodyLength() {
    if (!request.Header("Transfer-Encoding").isEmpty())
        return Refuse(501);
    const QByteArray text = request.Header("Content-Length");
    if (text.isEmpty())
        return request.method == "POST" ? Refuse(411) : true;
    if (!std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return Refuse(400);
    bool fits = false;
    const qlonglong length = text.toLongLong(&fits);
    if (!fits || length > bodyLimit)
        return Refuse(413);
    bodyLength = length;
    return true;
}

bool RequestReader::Refuse(int status) {
    refusal = status;
    return false;
}

} // namespace lanterra
