#include "park/loopback_server.h"

#include <QTcpSocket>

namespace lanterra {

namespace {

constexpr int backlog = 1024;
constexpr int retryAfter = 100; // milliseconds

} // namespace

LoopbackServer::LoopbackServer(qsizetype limit) : connectionLimit(limit) {
    setListenBacklogSize(backlog);
    // A process out of file descriptors makes QTcpServer stop accepting for good.
    acceptRetry.setSingleShot(true);
    acceptRetry.setInterval(retryAfter);
    connect(this, &QTcpServer::acceptError, &acceptRetry, [this] { acceptRetry.start(); });
    connect(&acceptRetry, &QTimer::timeout, this, &QTcpServer::resumeAccepting);
}

void LoopbackServer::incomingConnection(qintptr descriptor) {
    if (children().size() < connectionLimit)
        return Serve(descriptor);
    QTcpSocket closedAtOnce;
    closedAtOnce.setSocketDescriptor(descriptor);
}

} // namespace lanterra
