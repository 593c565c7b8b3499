#pragma once

#include "park/http_message.h"

namespace lanterra {

/// Reads HTTP requests from a stream of bytes that nobody vouches for. Bounds: 64 KiB for the request line
/// and headers together, 200 headers, 256 KiB of body. Bytes behind a complete request are kept for the next
/// one.
class RequestReader {
public:
    static constexpr qsizetype headLimit = 65'536;
    static constexpr qsizetype headerCountLimit = 200;
    static constexpr qsizetype bodyLimit = 262'144;

    enum class State { NeedsMore, Complete, Refused };

    /// Takes the next bytes; none to look at what is kept. After Complete, TakeRequest comes first. Refused
    /// is final.
    State Add(const QByteArray &bytes);

    /// The request so far; method and target are known once HasRequestLine.
    const HttpRequest &Request() const { return request; }
    bool HasRequestLine() const { return !request.method.isEmpty(); }
    /// Whether anything of a request has come.
    bool HasBegun() const { return HasRequestLine() || !buffer.isEmpty(); }

    /// The complete request; the reader is ready for the next one.
    HttpRequest TakeRequest();

    /// After Refused: the status to answer with.
    int RefusalStatus() const { return refusal; }

private:
    bool ReadHead();
    bool ReadLine(QByteArrayView line);
    bool ReadRequestLine(QByteArrayView line);
    bool ReadHeader(QByteArrayView line);
    bool EndHead();
    bool ReadBodyLength();
    bool Refuse(int status);

    HttpRequest request;
    QByteArray buffer;
    qsizetype position = 0;   ///< of the first byte of the buffer that belongs to no finished line
    qsizetype scanned = 0;    ///< up to here the buffer holds no further line end
    qsizetype bodyLength = 0; ///< valid once headDone
    bool headDone = false;
    int refusal = 0;
};

} // namespace lanterra
