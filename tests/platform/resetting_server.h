#pragma once

#include <QCoreApplication>
#include <QSemaphore>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTcpServer>
#include <sys/socket.h>
#include <thread>

namespace lanterra {

/// A TLS server on a thread of its own, for one connection: once told to, it answers without having read
/// anything and resets.
class ResettingServer {
    Q_DISABLE_COPY_MOVE(ResettingServer)

public:
    ResettingServer(const QSslConfiguration &tls, const QByteArray &answer)
        : thread([this, tls, answer] { Run(tls, answer); }) {
        listens.acquire();
    }
    ~ResettingServer() { thread.join(); }

    quint16 port = 0;
    QSemaphore stands; ///< released when the handshake is through
    QSemaphore go;     ///< for the client to release
    QSemaphore reset;  ///< released when answer and reset are on their way

private:
    struct Listener : QTcpServer {
        qintptr taken = -1;
        void incomingConnection(qintptr descriptor) override { taken = descriptor; }
    };

    void Run(const QSslConfiguration &tls, const QByteArray &answer) {
        constexpr int patience = 5000;
        Listener server;
        server.listen(QHostAddress::LocalHost);
        port = server.serverPort();
        listens.release();
        if (!server.waitForNewConnection(patience))
            return;
        QSslSocket socket;
        socket.setSocketDescriptor(server.taken);
        socket.setSslConfiguration(tls);
        socket.startServerEncryption();
        if (!socket.waitForEncrypted(patience))
            return;
        stands.release();
        QMetaObject::invokeMethod(
            qApp, [] {}, Qt::QueuedConnection); // wakes the event queue of the test
        if (!go.tryAcquire(1, patience))
            return;
        socket.write(answer);
        socket.flush();
        const linger atOnce = {.l_onoff = 1, .l_linger = 0};
        setsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce,
                   sizeof atOnce);
        socket.abort();
        reset.release();
    }

    QSemaphore listens;
    std::thread thread;
};

} // namespace lanterra
