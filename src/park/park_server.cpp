#include "park/park_server.h"

#include "park/park_connection.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int backlog = 1024;
// Below the usual limit of 1,024 open files of a process. What comes beyond is closed at once.
constexpr qsizetype connectionLimit = 900;
constexpr int retryAfter = 100; // milliseconds

} // namespace

ParkServer::ParkServer(int latency, AccessLog &accessLog) : latencyMs(latency), log(accessLog) {
    setListenBacklogSize(backlog);
    // A process out of file descriptors makes QTcpServer stop accepting for good.
    acceptRetry.setSingleShot(true);
    acceptRetry.setInterval(retryAfter);
    connect(this, &QTcpServer::acceptError, &acceptRetry, [this] { acceptRetry.start(); });
    connect(&acceptRetry, &QTimer::timeout, this, &QTcpServer::resumeAccepting);
}

bool ParkServer::Start(quint16 port) {
    if (!listen(QHostAddress::LocalHost, port))
        return false;
    park = std::make_unique<Park>(Origin());
    return true;
}

QString ParkServer::Origin() const { return u"http://127.0.0.1:%1"_s.arg(serverPort()); }

void ParkServer::incomingConnection(qintptr descriptor) {
    if (children().size() < connectionLimit) {
        new ParkConnection(descriptor, *park, log, latencyMs, this);
        return;
    }
    QTcpSocket closedAtOnce;
    closedAtOnce.setSocketDescriptor(descriptor);
}

} // namespace lanterra
