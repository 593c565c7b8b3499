#include "platform/chunked_body.h"

#include <algorithm>
#include <limits>

namespace lanterra {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostDigits = 16;
constexpr int longestLine = 16 * 1024;
constexpr int longestTrailers = 64 * 1024;

// The value of a hexadecimal digit, -1 for any other character.
int HexDigit(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

} // namespace

ChunkedBody::State ChunkedBody::Read(QByteArrayView &input, QByteArrayView &piece) {
    piece = {};
    while (state == State::Reading && !input.isEmpty() && piece.isEmpty()) {
        if (place == Place::Data) {
            const auto available = static_cast<quint64>(input.size());
            piece = input.first(static_cast<qsizetype>(std::min(remaining, available)));
            remaining -= static_cast<quint64>(piece.size());
            input = input.sliced(piece.size());
            if (remaining == 0)
                place = Place::DataEnd;
        } else {
            Take(input.front());
            input = input.sliced(1);
        }
    }
    return state;
}

void ChunkedBody::Take(char c) {
    const bool inTrailer = place == Place::Trailer;
    if (++lineBytes > (inTrailer ? longestTrailers : longestLine))
        Fail(inTrailer ? u"The trailers of the answer are too long"_s
                       : u"A chunk line of the answer is too long"_s);
    else if (inTrailer)
        TakeTrailer(c);
    else if (place == Place::DataEnd)
        TakeDataEnd(c);
    else if (place == Place::Size)
        TakeSize(c);
    else if (c == '\n')
        EndSizeLine();
}

void ChunkedBody::TakeSize(char c) {
    const int value = HexDigit(c);
    if (value >= 0 && digits < mostDigits) {
        remaining = remaining * 16 + static_cast<quint64>(value);
        ++digits;
    } else if (value >= 0 || digits == 0 || remaining > std::numeric_limits<qint64>::max()) {
        Fail(u"A chunk size of the answer is not valid"_s);
    } else if (c == '\n') {
        EndSizeLine();
    } else {
        place = Place::Extension;
    }
}

void ChunkedBody::EndSizeLine() {
    place = remaining > 0 ? Place::Data : Place::Trailer;
    lineBytes = 0;
    digits = 0;
}

void ChunkedBody::TakeDataEnd(char c) {
    if (c == '\n') {
        place = Place::Size;
        lineBytes = 0;
    } else if (c != '\r' || lineBytes > 1) {
        Fail(u"A chunk of the answer is longer than it says"_s);
    }
}

void ChunkedBody::TakeTrailer(char c) {
    if (c == '\n' && lineIsEmpty)
        state = State::Complete;
    else if (c == '\n')
        lineIsEmpty = true;
    else if (c != '\r')
        lineIsEmpty = false;
}

void ChunkedBody::Fail(const QString &reason) {
    state = State::Failed;
    problem = reason;
}

} // namespace lanterra
