#pragma once

#include <QAbstractSocket>
#include <QSslError>
#include <QString>

namespace lanterra {

/// Why an exchange failed.
struct Failure {
    int code = -1;  ///< as HttpClient::Error raises it: a socket error less 10000, -1 where none fits
    QString reason; ///< one sentence that a person understands, without a full stop
};

/// A failure that no socket reported: the peer said what can't be understood.
Failure BadAnswer(const QString &reason);

/// What an AbortWithError raises.
Failure Aborted();

/// A failure of the connection itself.
Failure SocketFailure(QAbstractSocket::SocketError error);

/// The same on the way to a proxy; the sentence says so.
Failure ProxyFailure(QAbstractSocket::SocketError error);

/// A TLS handshake that failed. `details` is the TLS library's own text.
Failure HandshakeFailure(QAbstractSocket::SocketError error, const QString &details);

/// A certificate that was refused.
Failure CertificateFailure(const QSslError &error);

} // namespace lanterra
