#include "tests/park/park_fixture.h"

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

void ParkFixture::GivenServer(int latency) {
    server = std::make_unique<ParkServer>(latency, log);
    ASSERT_TRUE(server->Start(0));
}

QByteArray ParkFixture::Get(const QByteArray &target) {
    return RawPeer(*server).Says("GET " + target + " HTTP/1.1\r\nConnection: close\r\n\r\n").HearsToTheEnd();
}

QByteArray ParkFixture::Post(const QByteArray &target, const QByteArray &body) {
    return RawPeer(*server)
        .Says("POST " + target + " HTTP/1.1\r\nCONNECTION: close\r\nCONTENT-LENGTH: " +
              QByteArray::number(body.size()) + "\r\n\r\n" + body)
        .HearsToTheEnd();
}

QStringList ParkFixture::LogLines() const {
    QFile file(folder.filePath(u"park.log"_s));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed().split(u'\n')
                                          : QStringList();
}

} // namespace lanterra
