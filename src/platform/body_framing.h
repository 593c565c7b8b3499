#pragma once

#include "platform/header_reader.h"

namespace lanterra {

/// How the end of an answer's body is known.
struct BodyFraming {
    enum class Kind {
        None,       ///< the status has no body
        Chunks,     ///< chunked transfer coding
        Length,     ///< `length` bytes
        Connection, ///< the body ends with the connection
        Malformed   ///< `problem` says why
    };

    Kind kind = Kind::Connection;
    qint64 length = 0;
    QString problem;
};

/// Reads the framing from the header of a final answer. Chunks win over a length; a length that no 64-bit
/// number holds counts as none. Malformed are a transfer coding other than chunked, a length that is not all
/// digits, and two lengths that differ.
BodyFraming FramingOf(const AnswerHeader &header);

} // namespace lanterra
