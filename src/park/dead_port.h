#pragma once

#include <QTcpServer>
#include <QTcpSocket>

namespace lanterra {

/// A port of 127.0.0.1 on which nothing can be reached, kept so that nobody else can serve it.
class DeadPort {
public:
    /// Refuses connections. Port 0 takes a free one; false if the port can't be had.
    bool Close(quint16 port);

    /// Leaves every connection hanging before it stands: its queue is full, and nobody takes from it. As
    /// Close otherwise.
    bool StopAccepting(quint16 port);

    quint16 Port() const;
    QString ErrorText() const;

private:
    QTcpSocket bound;
    QTcpServer listener;
    QTcpSocket first; ///< the connection that fills the listener's queue
};

} // namespace lanterra
