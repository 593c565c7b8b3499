#include "park/alertless_socket.h"

#include "park/socket_output.h"

#include <sys/socket.h>

namespace lanterra {

AlertlessSocket::AlertlessSocket() {
    WhenBytesAreSent(*this, this, [this] { CloseIfAllIsSent(); });
}

void AlertlessSocket::disconnectFromHost() {
    leaving = true;
    flush();
    CloseIfAllIsSent();
}

// The end comes back as that of the peer, and Qt sends no alert into a socket that was shut down.
void AlertlessSocket::CloseIfAllIsSent() {
    if (leaving && UnsentBytes(*this) == 0)
        ::shutdown(static_cast<int>(socketDescriptor()), SHUT_RDWR);
}

} // namespace lanterra
