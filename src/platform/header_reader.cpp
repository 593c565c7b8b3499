#include "platform/header_reader.h"

#include <algorithm>

namespace lanterra {

using namespace Qt::StringLiterals;

namespace {

// What no honest server reaches; without a bound a hostile one fills the memory.
constexpr qsizetype longestLine = 100LL * 1024;
constexpr qsizetype mostBytes = 300LL * 1024;
constexpr int mostLines = 5000;

constexpr int switchingProtocols = 101;
constexpr int firstFinalStatus = 200;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

QByteArrayView WithoutLineEnd(QByteArrayView line) {
    line.chop(1);
    if (line.endsWith('\r'))
        line.chop(1);
    return line;
}

} // namespace

HeaderReader::State HeaderReader::Read(QByteArrayView &input) {
    while (state == State::Reading && !input.isEmpty()) {
        const qsizetype lineEnd = input.indexOf('\n');
        const QByteArrayView piece = lineEnd < 0 ? input : input.first(lineEnd + 1);
        input = input.sliced(piece.size());
        text.append(piece);
        bytesRead += piece.size();
        if (text.size() - lineStart > longestLine)
            Fail(u"A header line of the answer is too long"_s);
        else if (bytesRead > mostBytes)
            Fail(u"The headers of the answer are too long"_s);
        else if (lineEnd >= 0)
            TakeLine(WithoutLineEnd(QByteArrayView(text).sliced(lineStart)));
    }
    return state;
}

void HeaderReader::TakeLine(QByteArrayView line) {
    lineStart = text.size();
    if (++linesRead > mostLines)
        Fail(u"The answer has too many header lines"_s);
    else if (line.contains('\r') || line.contains('\0'))
        Fail(u"A header line of the answer is malformed"_s);
    else if (header.status == 0)
        TakeStatusLine(line);
    else if (line.isEmpty())
        TakeEmptyLine();
    else
        TakeField(line);
}

// "HTTP/1." digit " " three digits, then nothing or a blank and the reason.
void HeaderReader::TakeStatusLine(QByteArrayView line) {
    constexpr qsizetype codeAt = 9;
    constexpr qsizetype codeEnd = codeAt + 3;
    const bool isVersion = line.startsWith("HTTP/1.0 ") || line.startsWith("HTTP/1.1 ");
    if (!isVersion || line.size() < codeEnd || (line.size() > codeEnd && !IsBlank(line[codeEnd]))) {
        Fail(u"The server doesn't answer in HTTP"_s);
        return;
    }
    const QByteArrayView code = line.sliced(codeAt, codeEnd - codeAt);
    if (!std::all_of(code.begin(), code.end(), IsDigit) || code.front() == '0') {
        Fail(u"The answer has no valid status"_s);
        return;
    }
    header.status = code.toByteArray().toInt();
}

void HeaderReader::TakeField(QByteArrayView line) {
    if (IsBlank(line.front()) && !header.fields.isEmpty()) {
        QByteArray &value = header.fields.last().value;
        value.append(value.isEmpty() ? "" : " ").append(line.trimmed());
        return;
    }
    const qsizetype colon = line.indexOf(':');
    if (colon < 0 || IsBlank(line.front())) {
        Fail(u"A header line of the answer is malformed"_s);
        return;
    }
    header.fields.append({line.first(colon).trimmed().toByteArray().toLower(),
                          line.sliced(colon + 1).trimmed().toByteArray()});
}

void HeaderReader::TakeEmptyLine() {
    if (header.status >= firstFinalStatus) {
        state = State::Complete;
        return;
    }
    if (header.status == switchingProtocols) {
        Fail(u"The server switched to another protocol"_s);
        return;
    }
    header = {};
    text.clear();
    lineStart = 0;
}

void HeaderReader::Fail(const QString &reason) {
    state = State::Failed;
    problem = reason;
}

} // namespace lanterra
