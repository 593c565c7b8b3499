#pragma once

#include "park/access_log.h"
#include "park/gate.h"
#include "park/loopback_server.h"
#include "park/park.h"
#include "park/proxy_connection.h"

#include <QSslConfiguration>

namespace lanterra {

/// What the gates share.
struct GateSurroundings {
    Park &park;
    AccessLog &log;
    int latency = 0;                   ///< milliseconds before the first byte of an answer
    ProxyConnection::PortFilter ports; ///< where a proxy may lead
};

/// A gate that accepts connections: of the kinds Tls, Proxy and Script.
class GateServer : public LoopbackServer {
    Q_OBJECT

public:
    /// `server` is used by a gate of kind Tls. What `surroundings` refers to must outlive the gate.
    GateServer(const Gate &ownGate, const GateSurroundings &surroundings, const QSslConfiguration &server);

protected:
    void Serve(qintptr descriptor) override;

private:
    void ServeTls(qintptr descriptor);

    const Gate gate;
    const GateSurroundings shared;
    const QSslConfiguration tls;
};

} // namespace lanterra
