#include "park/socket_endings.h"

#include <QSslSocket>
#include <sys/socket.h>

namespace lanterra {

void ResetConnection(QTcpSocket &socket) {
    const linger atOnce{1, 0};
    ::setsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    socket.abort();
}

void EndSending(QTcpSocket &socket) {
    if (qobject_cast<QSslSocket *>(&socket) != nullptr)
        return socket.disconnectFromHost();
    socket.flush();
    ::shutdown(static_cast<int>(socket.socketDescriptor()), SHUT_WR);
}

} // namespace lanterra
