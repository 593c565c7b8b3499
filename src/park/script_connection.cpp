#include "park/script_connection.h"

#include <QTimerEvent>

namespace lanterra {

namespace {

constexpr int patience = 30'000; // milliseconds

} // namespace

ScriptConnection::ScriptConnection(qintptr descriptor, const Behaviour &behaviour, QObject *parent)
    : QObject(parent), player(behaviour, socket) {
    connect(&socket, &QTcpSocket::readyRead, this, &ScriptConnection::Receive);
    connect(&socket, &QTcpSocket::disconnected, this, &ScriptConnection::deleteLater);
    if (!socket.setSocketDescriptor(descriptor)) {
        deleteLater();
        return;
    }
    socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    patienceTimer.start(patience, Qt::CoarseTimer, this);
    if (behaviour.early)
        Begin();
}

ScriptConnection::~ScriptConnection() { socket.disconnect(this); }

void ScriptConnection::timerEvent(QTimerEvent *event) {
    if (event->timerId() == patienceTimer.timerId())
        socket.abort();
}

void ScriptConnection::Receive() {
    socket.skip(socket.bytesAvailable());
    if (!begun)
        Begin();
}

void ScriptConnection::Begin() {
    begun = true;
    patienceTimer.stop();
    player.Start();
}

} // namespace lanterra
