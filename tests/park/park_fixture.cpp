#include "tests/park/park_fixture.h"

#include "tests/file_bytes.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace lanterra {

bool RunUntil(const std::function<bool()> &condition) {
    const QDeadlineTimer deadline(10'000);
    QTimer waker;
    waker.start(1'000);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

RawPeer::RawPeer(quint16 port) {
    QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [this] {
        if (socket.readBufferSize() == 0)
            heard += socket.readAll();
    });
    socket.connectToHost(QHostAddress::LocalHost, port);
}

RawPeer &RawPeer::Says(const QByteArray &bytes) {
    RunUntil([this] { return socket.state() != QAbstractSocket::ConnectingState; });
    socket.write(bytes);
    return *this;
}

QByteArray RawPeer::HearsToTheEnd() {
    EXPECT_TRUE(RunUntil([this] { return socket.state() == QAbstractSocket::UnconnectedState; }));
    return heard;
}

QByteArray RawPeer::Hears(qsizetype count) {
    EXPECT_TRUE(RunUntil([&] { return heard.size() >= count; }));
    return heard;
}

QStringList ParkFixture::LogLines() const {
    return QString::fromUtf8(BytesOf(folder.filePath(u"park.log"_s))).trimmed().split(u'\n');
}

} // namespace lanterra
