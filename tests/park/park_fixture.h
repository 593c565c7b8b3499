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

    RawPeer &Says(const QByteArray &bytes);
    /// All that came until the server closed; what came so far if it doesn't.
    QByteArray HearsToTheEnd();
    /// Waits for a number of bytes at least.
    QByteArray Hears(qsizetype count);
    void DoesNotRead() { socket.setReadBufferSize(1); }
    void HangsUp() { socket.abort(); }

private:
    QTcpSocket socket;
    QByteArray heard;
};

/// A practice web that listens on a port of its own.
class ParkFixture : public testing::Test {
protected:
    ParkFixture() { EXPECT_TRUE(server.Start(0)); }

    /// A new peer's whole conversation.
    QByteArray Say(const QByteArray &bytes) {
        return RawPeer(server.serverPort()).Says(bytes).HearsToTheEnd();
    }
    QByteArray Get(const QByteArray &target) {
        return Say("GET " + target + " HTTP/1.1\r\nConnection: close\r\n\r\n");
    }
    QByteArray Post(const QByteArray &target, const QByteArray &body) {
        return Say("POST " + target + " HTTP/1.1\r\nCONNECTION: close\r\nCONTENT-LENGTH: " +
                   QByteArray::number(body.size()) + "\r\n\r\n" + body);
    }
    QStringList LogLines() const;

    QTemporaryDir folder;
    AccessLog log{folder.filePath(QStringLiteral("park.log"))};
    ParkServer server{0, log};
};

} // namespace lanterra
