#pragma once

#include "platform/target_address.h"

#include <QByteArray>

namespace lanterra {

/// One request as a client is asked to send it.
struct Request {
    QByteArray method;     ///< "GET" or "POST"
    QString target;        ///< the address as it was given to the client
    QByteArray headers;    ///< header lines, with POST an empty line and the body behind them
    bool absolute = false; ///< the request line holds the whole address, for a proxy that speaks HTTP
};

/// The request line without its line end. Blanks, control characters and bytes above 127 of the address go
/// out percent-encoded; what is encoded already stays.
QByteArray RequestLine(const Request &request, const TargetAddress &address);

/// All bytes that go out for the request. Behind the request line stand the headers as they are, with what
/// they lack: a Host line and, for POST, a Content-Type in front of them, and the empty line that ends them.
/// Control characters of the target are percent-encoded in a header line that repeats it (a referring page),
/// so that a line break in an address never starts a header line of its own.
QByteArray RequestText(const Request &request, const TargetAddress &address);

} // namespace lanterra
