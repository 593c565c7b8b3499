#pragma once

#include <QByteArrayView>
#include <QString>

namespace lanterra {

/// Takes a body in chunked transfer coding apart as its bytes arrive (RFC 9112, 7.1):
///
///     chunk   = size in hexadecimal [anything] line-end, that many bytes, line-end
///     body    = chunks, "0" [anything] line-end, trailer lines, an empty line
///
/// A line end is LF, with or without CR. It fails, for good, at a size that is no number below 2^63 of at
/// most 16 digits, at bytes behind a chunk that are no line end, at a chunk line above 16 KB and at trailers
/// above 64 KB. What the sizes announce is never allocated.
class ChunkedBody {
public:
    enum class State { Reading, Complete, Failed };

    /// Takes bytes from the front of `input` until it has a piece of the body, a part of `input`'s bytes, or
    /// until `input` is empty or the state is no longer Reading.
    State Read(QByteArrayView &input, QByteArrayView &piece);

    /// Once failed: a sentence that says why.
    const QString &Problem() const { return problem; }

private:
    enum class Place { Size, Extension, Data, DataEnd, Trailer };

    void Take(char c);
    void TakeSize(char c);
    void EndSizeLine();
    void TakeDataEnd(char c);
    void TakeTrailer(char c);
    void Fail(const QString &reason);

    State state = State::Reading;
    Place place = Place::Size;
    QString problem;
    quint64 remaining = 0; ///< of the chunk under way
    int digits = 0;        ///< of its size
    int lineBytes = 0;     ///< of its line, or of the trailers
    bool lineIsEmpty = true;
};

} // namespace lanterra
