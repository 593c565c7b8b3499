#pragma once

#include "park/park_server.h"
#include "tests/file_bytes.h"
#include "tests/qt_printing.h"
#include "tests/wait_until.h"

#include <QTcpSocket>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace lanterra {

/// A peer of the practice web that says what it is told, byte for byte.
class RawPeer {
public:
    explicit RawPeer(quint16 port) {
        QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [this] {
            if (socket.readBufferSize() == 0)
                heard += socket.readAll();
        });
        socket.connectToHost(QHostAddress::LocalHost, port);
    }

    RawPeer &Says(const QByteArray &bytes) {
        WaitUntil([this] { return socket.state() != QAbstractSocket::ConnectingState; });
        socket.write(bytes);
        return *this;
    }
    /// All that came until the server closed; what came so far if it doesn't.
    QByteArray HearsToTheEnd() {
        EXPECT_TRUE(WaitUntil([this] { return socket.state() == QAbstractSocket::UnconnectedState; }));
        return heard;
    }
    /// Waits for a number of bytes at least.
    QByteArray Hears(qsizetype count) {
        EXPECT_TRUE(WaitUntil([&] { return heard.size() >= count; }));
        return heard;
    }
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
    QStringList LogLines() const {
        return QString::fromUtf8(BytesOf(folder.filePath(QStringLiteral("park.log")))).trimmed().split(u'\n');
    }

    QTemporaryDir folder;
    AccessLog log{folder.filePath(QStringLiteral("park.log"))};
    ParkServer server{0, log};
};

} // namespace lanterra
