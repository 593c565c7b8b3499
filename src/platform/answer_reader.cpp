#include "platform/answer_reader.h"

#include <algorithm>

namespace lanterra {

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 longestBody = 64LL * 1024 * 1024;
}

AnswerReader::Step AnswerReader::Read(QByteArrayView &input) {
    switch (place) {
    case Place::Header:
        return ReadHeader(input);
    case Place::Body:
        return ReadBody(input);
    case Place::Complete:
        return Step::Complete;
    case Place::Failed:
        break;
    }
    return Step::Failed;
}

AnswerReader::Step AnswerReader::ReadHeader(QByteArrayView &input) {
    switch (headers.Read(input)) {
    case HeaderReader::State::Reading:
        return Step::NeedsMore;
    case HeaderReader::State::Failed:
        return Fail(headers.Problem());
    case HeaderReader::State::Complete:
        break;
    }
    framing = FramingOf(headers.Header());
    if (framing.kind == BodyFraming::Kind::Malformed)
        return Fail(framing.problem);
    place = Place::Body;
    return Step::Header;
}

AnswerReader::Step AnswerReader::ReadBody(QByteArrayView &input) {
    if (framing.kind == BodyFraming::Kind::Chunks) {
        const ChunkedBody::State state = chunks.Read(input, piece);
        if (state == ChunkedBody::State::Failed)
            return Fail(chunks.Problem());
        if (state == ChunkedBody::State::Complete)
            return Complete();
    } else if (framing.kind == BodyFraming::Kind::Connection) {
        TakePiece(input, longestBody + 1);
    } else {
        if (bodyBytes == framing.length)
            return Complete();
        TakePiece(input, framing.length - bodyBytes);
    }
    if (piece.isEmpty())
        return Step::NeedsMore;
    bodyBytes += piece.size();
    return bodyBytes > longestBody ? Fail(u"The answer is longer than 64 MiB"_s) : Step::Body;
}

void AnswerReader::TakePiece(QByteArrayView &input, qint64 atMost) {
    piece = input.first(static_cast<qsizetype>(std::min<qint64>(input.size(), atMost)));
    input = input.sliced(piece.size());
}

AnswerReader::Step AnswerReader::Finish(End end) {
    if (place == Place::Body && framing.kind == BodyFraming::Kind::Connection && end == End::Orderly)
        return Complete();
    if (place == Place::Complete || place == Place::Failed)
        return place == Place::Complete ? Step::Complete : Step::Failed;
    return Fail(headers.HasBegun() ? u"The connection was closed in the middle of the answer"_s
                                   : u"The connection was closed without an answer"_s);
}

AnswerReader::Step AnswerReader::Complete() {
    place = Place::Complete;
    return Step::Complete;
}

AnswerReader::Step AnswerReader::Fail(const QString &reason) {
    place = Place::Failed;
    problem = reason;
    return Step::Failed;
}

} // namespace lanterra
