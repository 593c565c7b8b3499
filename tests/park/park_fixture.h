#pragma once

#include "park/park_server.h"

#include <QTcpSocket>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace lanterra {

/// Runs the event queue until the condition holds. False if that takes longer than ten seconds.
bool RunUntil(const std::function<bool()> &condition);

/// A peer of the practice web that says what it is told, byte for byte.
class RawPeer {
public:
    explicit RawPeer(quint16 port);
    explicit RawPeer(const ParkServer &server) : RawPeer(server.serverPort()) {}

    RawPeer &Says(const QByteArray &bytes);
    /// All that came until the server closed; what came so far if it doesn't.
    QByteArray HearsToTheEnd();
    /// Waits for a number of bytes at least.
    QByteArray Hears(qsizetype count);
    void DoesNotRead() { socket.setReadBufferSize(1); }
    void HangsUp() { socket.abort(); }
    bool IsConnected() const { return socket.state() == QAbstractSocket::ConnectedState; }

private:
    QTcpSocket socket;
    QByteArray heard;
};

class ParkFixture : public testing::Test {
protected:
    void GivenServer(int latency = 0);

    QByteArray Get(const QByteArray &target);
    QByteArray Post(const QByteArray &target, const QByteArray &body);
    QStringList LogLines() const;

    QTemporaryDir folder;
    AccessLog log{folder.filePath(QStringLiteral("park.log"))};
    std::unique_ptr<ParkServer> server;
};

} // namespace lanterra
