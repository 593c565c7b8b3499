#pragma once

#include "platform/body_framing.h"
#include "platform/chunked_body.h"
#include "platform/header_reader.h"

namespace lanterra {

/// Reads one HTTP answer as its bytes arrive and tells when it is complete. It knows no socket and keeps
/// nothing of the body, so its memory doesn't grow with the answer. The bounds are those of HeaderReader and
/// ChunkedBody, and 64 MiB of body.
class AnswerReader {
public:
    enum class Step {
        NeedsMore, ///< all of the input is taken
        Header,    ///< the header is complete
        Body,      ///< Piece holds the next bytes of the body
        Complete,  ///< the answer is complete; input behind it is left
        Failed     ///< Problem says why
    };

    /// How the connection ended.
    enum class End { Orderly, Broken };

    /// Takes bytes from the front of `input` up to the next step. To be called until it answers NeedsMore,
    /// Complete or Failed; the last two are final.
    Step Read(QByteArrayView &input);

    /// Says that no more bytes will come. Complete or Failed.
    Step Finish(End end);

    /// The header of the final answer as it came. Valid from Header on.
    const QByteArray &HeaderText() const { return headers.Text(); }

    /// The bytes of the last Body step, without chunk marks; a part of the input that was read.
    QByteArrayView Piece() const { return piece; }

    const QString &Problem() const { return problem; }

private:
    enum class Place { Header, Body, Complete, Failed };

    Step ReadHeader(QByteArrayView &input);
    Step ReadBody(QByteArrayView &input);
    void TakePiece(QByteArrayView &input, qint64 atMost);
    Step Complete();
    Step Fail(const QString &reason);

    Place place = Place::Header;
    HeaderReader headers;
    BodyFraming framing;
    ChunkedBody chunks;
    QByteArrayView piece;
    qint64 bodyBytes = 0;
    QString problem;
};

} // namespace lanterra
