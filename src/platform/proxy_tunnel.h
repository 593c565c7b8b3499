#pragma once

#include "platform/header_reader.h"
#include "platform/target_address.h"

namespace lanterra {

/// The CONNECT exchange with an HTTP proxy that opens a way to a server (RFC 9110, 9.3.6), without a socket.
/// The proxy's own answer never reaches the site's page.
class ProxyTunnel {
public:
    enum class State { Reading, Open, Refused };

    /// What is sent to the proxy.
    static QByteArray Request(const TargetAddress &address);

    /// Takes the next bytes of the proxy's answer. They are Refused if the answer is no success, can't be
    /// understood, or has bytes behind it, since the server has nothing to say before it is greeted.
    State Read(QByteArrayView input);

    /// Once refused: a sentence that says why.
    const QString &Problem() const { return problem; }

private:
    HeaderReader headers;
    QString problem;
};

} // namespace lanterra
