#include "platform/connection.h"

#include <QNetworkProxy>
#include <QSslConfiguration>
#include <QSslSocket>
#include <utility>

namespace lanterra {

namespace {
constexpr qint64 blockSize = 64LL * 1024; ///< also what the socket may hold back, so memory stays flat
}

Connection::Connection(const TargetAddress &address, const ProxyAddress &proxyAddress,
                       const QList<QSslCertificate> &authorities)
    : server(address), proxy(proxyAddress), trusted(authorities) {
    retry.setSingleShot(true);
    connect(&retry, &QTimer::timeout, this, &Connection::Open);
}

Connection::~Connection() {
    if (socket)
        socket->disconnect(this);
}

void Connection::Open() {
    socket = server.secure ? NewTlsSocket() : NewSocket();
    socket->setProxy(QNetworkProxy::NoProxy);
    socket->setReadBufferSize(blockSize);
    connect(socket.get(), &QTcpSocket::connected, this, &Connection::TakeConnected);
    connect(socket.get(), &QTcpSocket::readyRead, this, &Connection::TakeReadyRead);
    connect(socket.get(), &QTcpSocket::errorOccurred, this, &Connection::TakeError);
    if (proxy.host.isEmpty())
        socket->connectToHost(server.host, server.port);
    else
        socket->connectToHost(proxy.host, proxy.port);
}

// Plain http doesn't touch the TLS library at all: loading it takes longer than a small exchange.
std::unique_ptr<QTcpSocket> Connection::NewSocket() { return std::make_unique<QTcpSocket>(); }

std::unique_ptr<QTcpSocket> Connection::NewTlsSocket() {
    auto secured = std::make_unique<QSslSocket>();
    tls = secured.get();
    tls->setPeerVerifyName(server.host);
    if (!trusted.isEmpty()) {
        QSslConfiguration configuration = tls->sslConfiguration();
        configuration.setCaCertificates(trusted);
        tls->setSslConfiguration(configuration);
    }
    connect(tls, &QSslSocket::encrypted, this, &Connection::Stand);
    connect(tls, &QSslSocket::sslErrors, this, [this](const QList<QSslError> &errors) {
        certificateFailure = CertificateFailure(errors.front());
    });
    connect(tls, &QSslSocket::alertReceived, this, [this](QSsl::AlertLevel, QSsl::AlertType type) {
        closedByAlert = closedByAlert || type == QSsl::AlertType::CloseNotify;
    });
    return secured;
}

void Connection::TakeConnected() {
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    if (!tail.Hold(socket->socketDescriptor())) {
        End(SocketFailure(QAbstractSocket::SocketResourceError));
        return;
    }
    writer.Start(*socket, tail.Descriptor());
    if (!server.secure) {
        Stand();
    } else if (proxy.host.isEmpty()) {
        Secure();
    } else {
        stage = Stage::Tunnelling;
        socket->write(ProxyTunnel::Request(server));
    }
}

void Connection::Secure() {
    stage = Stage::Securing;
    tls->startClientEncryption();
}

void Connection::Stand() {
    stage = Stage::Standing;
    emit Changed();
}

void Connection::TakeReadyRead() {
    if (stage == Stage::Tunnelling)
        TakeTunnelAnswer();
    else if (stage == Stage::Standing)
        emit Changed();
}

void Connection::TakeTunnelAnswer() {
    switch (tunnel.Read(socket->read(blockSize))) {
    case ProxyTunnel::State::Reading:
        break;
    case ProxyTunnel::State::Open:
        Secure();
        break;
    case ProxyTunnel::State::Refused:
        End(BadAnswer(tunnel.Problem()));
        break;
    }
}

// The socket may throw away what it holds once this returns.
void Connection::TakeError(QAbstractSocket::SocketError error) {
    if (ended)
        return;
    // The socket gives up connecting after 30 seconds. How long a server is waited for is the caller's
    // matter.
    if (stage == Stage::Connecting && error == QAbstractSocket::SocketTimeoutError) {
        retry.start();
        return;
    }
    if (stage == Stage::Standing)
        leftover = socket->readAll();
    End(FailureOf(error));
}

void Connection::End(const Failure &failure) {
    ended = true;
    reason = failure;
    emit Changed();
}

Failure Connection::FailureOf(QAbstractSocket::SocketError error) const {
    switch (stage) {
    case Stage::Connecting:
    case Stage::Tunnelling:
        return proxy.host.isEmpty() ? SocketFailure(error) : ProxyFailure(error);
    case Stage::Securing:
        return certificateFailure ? *certificateFailure : HandshakeFailure(error, socket->errorString());
    case Stage::Standing:
        break;
    }
    return SocketFailure(error);
}

bool Connection::EndedInOrder() const { return tls ? closedByAlert : tail.WasClosedInOrder(); }

void Connection::Write(const QByteArray &bytes) {
    if (!ended)
        writer.Write(bytes);
}

QByteArray Connection::Read() {
    if (!leftover.isEmpty())
        return std::exchange(leftover, {});
    QByteArray block = socket->isReadable() ? socket->read(blockSize) : QByteArray();
    if (block.isEmpty() && ended && !tls)
        block = tail.Read(blockSize);
    return block;
}

} // namespace lanterra
