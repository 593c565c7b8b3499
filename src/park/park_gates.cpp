#include "park/park_gates.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

ParkGates::ParkGates(Park &practicePark, quint16 plainPort, AccessLog &accessLog, int latency)
    : park(practicePark), mainPort(plainPort), log(accessLog), latencyMs(latency) {}

bool ParkGates::OpenTls(quint16 firstPort, const QString &certificateFolder) {
    certificates.emplace(certificateFolder);
    errorText = certificates->ErrorText();
    return errorText.isEmpty() && OpenGroup(Gate::Group::Tls, firstPort);
}

bool ParkGates::OpenProxies(quint16 firstPort) { return OpenGroup(Gate::Group::Proxy, firstPort); }

bool ParkGates::OpenGroup(Gate::Group group, quint16 firstPort) {
    int port = firstPort;
    for (const Gate &gate : GateTable().RowsOf(group)) {
        if (port > 65535) {
            errorText = u"there are too few ports behind %1"_s.arg(firstPort);
            return false;
        }
        if (!OpenOne(gate, static_cast<quint16>(port)))
            return false;
        if (firstPort != 0)
            ++port;
    }
    park.SetOpenGates(open);
    return true;
}

bool ParkGates::OpenOne(const Gate &gate, quint16 port) {
    const bool isDead = gate.kind == Gate::Kind::Closed || gate.kind == Gate::Kind::NotAccepting;
    return isDead ? OpenDeadPort(gate, port) : OpenServer(gate, port);
}

bool ParkGates::OpenDeadPort(const Gate &gate, quint16 port) {
    auto dead = std::make_unique<DeadPort>();
    if (!(gate.kind == Gate::Kind::Closed ? dead->Close(port) : dead->StopAccepting(port)))
        return Fail(port, dead->ErrorText());
    open.append({gate, dead->Port()});
    deadPorts.push_back(std::move(dead));
    return true;
}

bool ParkGates::OpenServer(const Gate &gate, quint16 port) {
    const GateSurroundings surroundings{park, log, latencyMs,
                                        [this](quint16 asked) { return IsOwnPort(asked); }};
    auto server = std::make_unique<GateServer>(
        gate, surroundings,
        gate.kind == Gate::Kind::Tls ? certificates->ConfigurationOf(gate.certificate) : QSslConfiguration());
    if (!server->ListenOn(port))
        return Fail(port, server->errorString());
    open.append({gate, server->serverPort()});
    servers.push_back(std::move(server));
    return true;
}

bool ParkGates::Fail(quint16 port, const QString &reason) {
    errorText = u"can't open port %1: %2"_s.arg(port).arg(reason);
    return false;
}

bool ParkGates::IsOwnPort(quint16 port) const {
    return port == mainPort || std::any_of(open.begin(), open.end(), [port](const OpenGate &row) {
               return row.port == port && row.gate.group == Gate::Group::Tls;
           });
}

} // namespace lanterra
