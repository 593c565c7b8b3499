#pragma once

#include <QTcpServer>
#include <QTimer>

namespace lanterra {

/// Listens on 127.0.0.1 and hands each connection to Serve. It keeps accepting after the process was out of
/// file descriptors.
class LoopbackServer : public QTcpServer {
    Q_OBJECT

public:
    /// Above `limit` connections at once, further ones are closed as they come.
    explicit LoopbackServer(qsizetype limit);

    /// Begins to listen; port 0 takes a free one. False if that fails: see serverError and errorString.
    bool ListenOn(quint16 port) { return listen(QHostAddress::LocalHost, port); }

protected:
    /// Takes the socket descriptor over. What serves it becomes a child of this server while it lives.
    virtual void Serve(qintptr descriptor) = 0;

private:
    void incomingConnection(qintptr descriptor) final;

    qsizetype connectionLimit;
    QTimer acceptRetry;
};

} // namespace lanterra
