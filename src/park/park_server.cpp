#include "park/park_server.h"

#include "park/park_connection.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// Below the usual limit of 1,024 open files of a process.
constexpr qsizetype mostConnections = 900;

} // namespace

ParkServer::ParkServer(int latency, AccessLog &accessLog)
    : LoopbackServer(mostConnections), latencyMs(latency), log(accessLog) {}

bool ParkServer::Start(quint16 port) {
    if (!ListenOn(port))
        return false;
    park = std::make_unique<Park>(Origin());
    return true;
}

QString ParkServer::Origin() const { return u"http://127.0.0.1:%1"_s.arg(serverPort()); }

void ParkServer::Serve(qintptr descriptor) {
    auto socket = std::make_unique<QTcpSocket>();
    if (socket->setSocketDescriptor(descriptor))
        new ParkConnection(std::move(socket), *park, log, latencyMs, this);
}

} // namespace lanterra
