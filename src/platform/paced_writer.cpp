#include "platform/paced_writer.h"

#include <QSocketNotifier>
#include <QTcpSocket>
#include <algorithm>
#include <poll.h>

namespace lanterra {

namespace {
constexpr qsizetype blockSize = 16LL * 1024; ///< a TLS record's worth; the system has room for it or for none
}

PacedWriter::PacedWriter() = default;

PacedWriter::~PacedWriter() = default;

void PacedWriter::Start(QTcpSocket &target, int duplicate) {
    socket = &target;
    descriptor = duplicate;
    roomNotifier = std::make_unique<QSocketNotifier>(duplicate, QSocketNotifier::Write);
    roomNotifier->setEnabled(false);
    connect(roomNotifier.get(), &QSocketNotifier::activated, this, &PacedWriter::Continue);
}

void PacedWriter::Write(const QByteArray &bytes) {
    waiting.append(bytes);
    Continue();
}

PacedWriter::Room PacedWriter::Look() const {
    if (socket->state() != QAbstractSocket::ConnectedState)
        return Room::Gone;
    pollfd state = {.fd = descriptor, .events = POLLOUT, .revents = 0};
    if (poll(&state, 1, 0) < 0)
        return Room::None;
    if ((state.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0)
        return Room::Gone;
    return (state.revents & POLLOUT) != 0 ? Room::Some : Room::None;
}

void PacedWriter::Continue() {
    Room room = Look();
    for (; room == Room::Some && sent < waiting.size(); room = Look()) {
        const qsizetype length = std::min(blockSize, waiting.size() - sent);
        const char *const block = waiting.constData() + sent;
        sent += length;
        socket->write(block, length);
        socket->flush();
    }
    if (room == Room::Gone || sent == waiting.size()) {
        waiting.clear();
        sent = 0;
    }
    roomNotifier->setEnabled(!waiting.isEmpty());
}

} // namespace lanterra
