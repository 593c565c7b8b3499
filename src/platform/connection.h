#pragma once

#include "platform/failure.h"
#include "platform/paced_writer.h"
#include "platform/proxy_tunnel.h"
#include "platform/socket_tail.h"
#include "platform/target_address.h"

#include <QSslCertificate>
#include <QTcpSocket>
#include <QTimer>
#include <memory>

class QSslSocket;

namespace lanterra {

/// An HTTP proxy; none if `host` is empty.
struct ProxyAddress {
    QString host;
    quint16 port = 80;
};

/// The way to a server as a stream of bytes: TCP, the tunnel through a proxy for https, TLS with certificate
/// check. It only says that something has changed; its owner looks at a moment of its own choice.
class Connection final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Connection)

public:
    /// `authorities` are trusted in place of the system's; none for the system's.
    Connection(const TargetAddress &address, const ProxyAddress &proxyAddress,
               const QList<QSslCertificate> &authorities);
    ~Connection() override;

    /// Begins; returns at once. A failure is told like a later one.
    void Open();

    /// Whether bytes can go to the server.
    bool Stands() const { return stage == Stage::Standing; }

    /// Whether the connection has failed or was closed. Bytes may still be left to Read.
    bool HasEnded() const { return ended; }

    /// Once ended and read: whether the server ended it, with TLS by its closing alert and else by a close.
    bool EndedInOrder() const;

    /// Once ended: why.
    const Failure &Reason() const { return reason; }

    /// Sends the bytes. Without effect once the connection has ended.
    void Write(const QByteArray &bytes);

    /// The next bytes that have arrived, a bounded block; empty if there are none.
    QByteArray Read();

signals:
    /// It stands, has bytes to read, or has ended. Raised inside the socket's own signals, so a handler must
    /// neither delete the connection nor let events run.
    void Changed();

private:
    enum class Stage { Connecting, Tunnelling, Securing, Standing };

    std::unique_ptr<QTcpSocket> NewSocket();
    std::unique_ptr<QTcpSocket> NewTlsSocket();
    void TakeConnected();
    void TakeTunnelAnswer();
    void Secure();
    void Stand();
    void TakeReadyRead();
    void TakeError(QAbstractSocket::SocketError error);
    void End(const Failure &failure);
    Failure FailureOf(QAbstractSocket::SocketError error) const;

    const TargetAddress server;
    const ProxyAddress proxy;
    const QList<QSslCertificate> trusted;
    std::unique_ptr<QTcpSocket> socket;
    QTimer retry;              ///< of connecting, at the next turn of the event queue
    QSslSocket *tls = nullptr; ///< socket, if the server is https
    ProxyTunnel tunnel;
    SocketTail tail;
    PacedWriter writer;
    Stage stage = Stage::Connecting;
    bool ended = false;
    bool closedByAlert = false; ///< the server has sent the closing alert of TLS
    QByteArray leftover;        ///< what had arrived when the socket failed
    Failure reason;
    std::optional<Failure> certificateFailure;
};

} // namespace lanterra
