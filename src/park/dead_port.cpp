#include "park/dead_port.h"

namespace lanterra {

namespace {

constexpr int patience = 1'000; // milliseconds for a connection within this process

} // namespace

bool DeadPort::Close(quint16 port) { return bound.bind(QHostAddress::LocalHost, port); }

bool DeadPort::StopAccepting(quint16 port) {
    listener.setListenBacklogSize(0); // the system takes one connection then
    if (!listener.listen(QHostAddress::LocalHost, port))
        return false;
    listener.pauseAccepting();
    first.connectToHost(QHostAddress::LocalHost, listener.serverPort());
    return first.waitForConnected(patience);
}

quint16 DeadPort::Port() const { return listener.isListening() ? listener.serverPort() : bound.localPort(); }

QString DeadPort::ErrorText() const {
    return listener.isListening() ? first.errorString() : bound.errorString() + listener.errorString();
}

} // namespace lanterra
