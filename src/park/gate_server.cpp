#include "park/gate_server.h"

#include "park/alertless_socket.h"
#include "park/park_connection.h"
#include "park/script_connection.h"

namespace lanterra {

namespace {

// A tenth of what a process may have open, so that no gate takes all of it.
constexpr qsizetype mostConnections = 100;

std::unique_ptr<QSslSocket> NewSocket(bool closingAlert) {
    if (closingAlert)
        return std::make_unique<QSslSocket>();
    return std::make_unique<AlertlessSocket>();
}

} // namespace

GateServer::GateServer(const Gate &ownGate, const GateSurroundings &surroundings,
                       const QSslConfiguration &server)
    : LoopbackServer(mostConnections), gate(ownGate), shared(surroundings), tls(server) {}

void GateServer::Serve(qintptr descriptor) {
    if (gate.kind == Gate::Kind::Tls)
        ServeTls(descriptor);
    else if (gate.kind == Gate::Kind::Proxy)
        new ProxyConnection(descriptor, shared.ports, shared.log, this);
    else
        new ScriptConnection(descriptor, gate.script, this);
}

void GateServer::ServeTls(qintptr descriptor) {
    std::unique_ptr<QSslSocket> socket = NewSocket(gate.closingAlert);
    if (!socket->setSocketDescriptor(descriptor))
        return;
    socket->setSslConfiguration(tls);
    socket->startServerEncryption();
    new ParkConnection(std::move(socket), shared.park, shared.log, shared.latency, this);
}

} // namespace lanterra
