#include "platform/socket_tail.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace lanterra {

bool SocketTail::Hold(qintptr descriptor) {
    Release();
    sawError = false;
    duplicate = fcntl(static_cast<int>(descriptor), F_DUPFD_CLOEXEC, 0);
    return duplicate != none;
}

QByteArray SocketTail::Read(qsizetype atMost) {
    if (duplicate == none)
        return {};
    QByteArray block(atMost, Qt::Uninitialized);
    const ssize_t count = recv(duplicate, block.data(), static_cast<size_t>(atMost), MSG_DONTWAIT);
    sawError = sawError || count < 0;
    block.truncate(count > 0 ? count : 0);
    return block;
}

// After an orderly close the socket is half open: readable, and not hung up. A reset hangs it up; the error
// of it is gone by then, because Qt's read or ours has taken it. A reset that comes behind an orderly close,
// for bytes that we still sent, changes nothing for what was read: its error is still pending then.
bool SocketTail::WasClosedInOrder() const {
    if (duplicate == none || sawError)
        return false;
    pollfd state = {.fd = duplicate, .events = POLLIN, .revents = 0};
    if (poll(&state, 1, 0) < 0)
        return false;
    if ((state.revents & POLLHUP) == 0)
        return (state.revents & POLLIN) != 0;
    int pending = 0;
    socklen_t size = sizeof pending;
    getsockopt(duplicate, SOL_SOCKET, SO_ERROR, &pending, &size);
    return pending == EPIPE;
}

void SocketTail::Release() {
    if (duplicate != none)
        close(duplicate);
    duplicate = none;
}

} // namespace lanterra
