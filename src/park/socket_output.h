#pragma once

#include <QTcpSocket>
#include <functional>

namespace lanterra {

/// Bytes that were written to the socket and that the system hasn't taken yet, with TLS also those that are
/// encrypted already.
qint64 UnsentBytes(const QTcpSocket &socket);

/// Has `handler` run, as long as `context` lives, whenever the system has taken bytes. It runs at a later
/// turn of the event queue, because a flush would report its bytes from inside the write that is under way.
void WhenBytesAreSent(const QTcpSocket &socket, QObject *context, const std::function<void()> &handler);

} // namespace lanterra
