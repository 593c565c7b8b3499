#include "park/socket_output.h"

#include <QSslSocket>

namespace lanterra {

qint64 UnsentBytes(const QTcpSocket &socket) {
    const auto *const tls = qobject_cast<const QSslSocket *>(&socket);
    return socket.bytesToWrite() + (tls == nullptr ? 0 : tls->encryptedBytesToWrite());
}

void WhenBytesAreSent(const QTcpSocket &socket, QObject *context, const std::function<void()> &handler) {
    if (const auto *const tls = qobject_cast<const QSslSocket *>(&socket))
        QObject::connect(tls, &QSslSocket::encryptedBytesWritten, context, handler, Qt::QueuedConnection);
    else
        QObject::connect(&socket, &QTcpSocket::bytesWritten, context, handler, Qt::QueuedConnection);
}

} // namespace lanterra
