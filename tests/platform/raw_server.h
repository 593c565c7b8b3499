#pragma once

#include <QSslConfiguration>
#include <QSslSocket>
#include <QTcpServer>
#include <sys/socket.h>

namespace lanterra {

/// A server on loopback that records what it receives, byte for byte, and answers the first bytes of each
/// connection with `answer`. Then it holds the connection open, closes it in order (with TLS by a closing
/// alert), cuts it without that alert, or resets it.
class RawServer final : public QTcpServer {
public:
    enum class Then { Hold, Close, Cut, Reset };

    explicit RawServer(const QHostAddress &address = QHostAddress::LocalHost) { listen(address); }

    /// Answers the last connection, whatever it has said.
    void AnswerUnread() { Answer(*last); }
    bool HandshakeIsThrough() const { return last && last->isEncrypted(); }

    QByteArray answer;
    Then then = Then::Hold;
    QSslConfiguration tls;       ///< none for plain http
    bool expectsConnect = false; ///< TLS begins behind a CONNECT request, which is granted
    QByteArray received;
    int connections = 0;

protected:
    void incomingConnection(qintptr descriptor) override {
        ++connections;
        auto *const socket = last = new QSslSocket(this);
        socket->setSocketDescriptor(descriptor);
        socket->setReadBufferSize(16LL * 1024); // answers early, however fast the other side sends
        socket->setSslConfiguration(tls);
        connect(socket, &QSslSocket::readyRead, this, [this, socket] { Serve(*socket); });
        if (!tls.isNull() && !expectsConnect)
            socket->startServerEncryption();
    }

private:
    void Serve(QSslSocket &socket) {
        received += socket.readAll();
        if (expectsConnect && !socket.isEncrypted()) {
            socket.write("HTTP/1.1 200 Go on\r\nContent-Length: 5\r\n\r\n");
            socket.startServerEncryption();
        } else if (socket.objectName().isEmpty()) {
            Answer(socket);
        }
    }

    void Answer(QSslSocket &socket) const {
        socket.setObjectName(QStringLiteral("answered"));
        socket.write(answer);
        socket.flush();
        const linger atOnce = {.l_onoff = 1, .l_linger = 0};
        const int descriptor = static_cast<int>(socket.socketDescriptor());
        if (then == Then::Close) {
            socket.disconnectFromHost();
        } else if (then == Then::Cut) {
            shutdown(descriptor, SHUT_RDWR);
        } else if (then == Then::Reset) {
            setsockopt(descriptor, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
            socket.abort();
        }
    }

    QSslSocket *last = nullptr;
};

} // namespace lanterra
