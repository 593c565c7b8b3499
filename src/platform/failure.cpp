#include "platform/failure.h"

#include "support/socket_errors.h"

namespace lanterra {

using namespace Qt::StringLiterals;

namespace {

constexpr int noCode = -1;
constexpr int connectionAborted = 53; ///< WSAECONNABORTED less 10000

QString Sentence(QAbstractSocket::SocketError error) {
    switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
        return u"Connection refused"_s;
    case QAbstractSocket::RemoteHostClosedError:
        return u"The connection was closed"_s;
    case QAbstractSocket::HostNotFoundError:
        return u"The host name was not found"_s;
    case QAbstractSocket::SocketTimeoutError:
        return u"The host did not respond in time"_s;
    case QAbstractSocket::NetworkError:
        return u"The host can't be reached through the network"_s;
    case QAbstractSocket::SocketAccessError:
        return u"This computer doesn't allow the connection"_s;
    case QAbstractSocket::SocketResourceError:
        return u"Too many connections are open on this computer"_s;
    default:
        return u"The connection failed"_s;
    }
}

QString CertificateSentence(QSslError::SslError error) {
    switch (error) {
    case QSslError::CertificateExpired:
        return u"The certificate has expired"_s;
    case QSslError::CertificateNotYetValid:
        return u"The certificate is not valid yet"_s;
    case QSslError::HostNameMismatch:
        return u"The certificate belongs to another host"_s;
    case QSslError::CertificateRevoked:
    case QSslError::CertificateBlacklisted:
        return u"The certificate has been revoked"_s;
    default:
        return u"The certificate is not trusted"_s;
    }
}

} // namespace

Failure BadAnswer(const QString &reason) { return {noCode, reason}; }

Failure Aborted() { return {connectionAborted, u"The request was aborted"_s}; }

Failure SocketFailure(QAbstractSocket::SocketError error) {
    return {SocketErrorCode(error), Sentence(error)};
}

Failure ProxyFailure(QAbstractSocket::SocketError error) {
    return {SocketErrorCode(error), u"The proxy can't be used: "_s + Sentence(error)};
}

// The TLS library tells its reasons only as text.
Failure HandshakeFailure(QAbstractSocket::SocketError error, const QString &details) {
    const int code = SocketErrorCode(error);
    if (error == QAbstractSocket::RemoteHostClosedError)
        return {code, u"The server closed the connection during the TLS handshake"_s};
    if (details.contains("wrong version number"_L1))
        return {code, u"The server doesn't speak TLS on this port"_s};
    if (details.contains("protocol version"_L1) || details.contains("unsupported protocol"_L1))
        return {code, u"The server offers no TLS version that is safe"_s};
    return {code, u"The TLS handshake failed"_s};
}

Failure CertificateFailure(const QSslError &error) {
    return {SocketErrorCode(QAbstractSocket::SslHandshakeFailedError), CertificateSentence(error.error())};
}

} // namespace lanterra
