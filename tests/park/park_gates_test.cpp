#include "park/park_gates.h"
#include "tests/park/park_fixture.h"
#include "tests/qt_printing.h"

#include <QFile>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class ParkGatesTest : public ParkFixture {
protected:
    ParkGatesTest() {
        GivenServer();
        gates = std::make_unique<ParkGates>(*server->Content(), server->serverPort(), log, 0);
    }

    quint16 PortOf(const QString &name) {
        for (const OpenGate &row : gates->Open())
            if (row.gate.name == name)
                return row.port;
        return 0;
    }

    QByteArray AskProxy(const QByteArray &requestLine) {
        return RawPeer(PortOf(u"proxy"_s)).Says(requestLine + " HTTP/1.1\r\n\r\n").HearsToTheEnd();
    }

    QByteArray Content(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<ParkGates> gates;
};

TEST_F(ParkGatesTest, TheProxyLeadsToThePracticeWebOnly) {
    ASSERT_TRUE(gates->OpenProxies(0));
    const QByteArray own = "127.0.0.1:" + QByteArray::number(server->serverPort());
    EXPECT_TRUE(AskProxy("GET http://" + own + "/behave/plain").endsWith("\r\n\r\nhello body\n"));
    EXPECT_TRUE(LogLines().last().contains(u" GET http://127.0.0.1:"_s)) << LogLines().last().toStdString();
    for (const QByteArray line : {"GET http://elsewhere.example/", "CONNECT 127.0.0.1:1", "GET /received",
                                  "CONNECT 10.0.0.1:80", "GET ftp://127.0.0.1/"})
        EXPECT_TRUE(AskProxy(line).startsWith("HTTP/1.1 403 ")) << line.toStdString();
    EXPECT_TRUE(AskProxy("hello").startsWith("HTTP/1.1 400 "));
    EXPECT_TRUE(RawPeer(PortOf(u"proxy"_s))
                    .Says("GET /" + QByteArray(70'000, 'x'))
                    .HearsToTheEnd()
                    .startsWith("HTTP/1.1 431 "));
}

TEST_F(ParkGatesTest, AreListedWithTheirPorts) {
    EXPECT_TRUE(Get("/behave/").contains("<code>tls-expired</code></th><td></td>"));
    ASSERT_TRUE(gates->OpenTls(0, {})) << gates->ErrorText().toStdString();
    const QByteArray address =
        "https://127.0.0.1:" + QByteArray::number(PortOf(u"tls-cut"_s)) + "/behave/until-close";
    EXPECT_TRUE(Get("/behave/").contains("<a href=\"" + address + '"'));
}

TEST_F(ParkGatesTest, CertificatesAreKeptInTheirFolder) {
    const QString path = folder.filePath(u"certificates"_s);
    const QString authority = path + u"/authority.pem"_s;
    EXPECT_EQ(PracticeCertificates(path).ErrorText(), u""_s);
    const QByteArray made = Content(authority);
    EXPECT_TRUE(made.startsWith("-----BEGIN CERTIFICATE-----"));
    EXPECT_EQ(PracticeCertificates(path).ErrorText(), u""_s);
    EXPECT_EQ(Content(authority), made);
    ASSERT_TRUE(QFile::remove(path + u"/expired.pem"_s));
    EXPECT_EQ(PracticeCertificates(path).ErrorText(), u""_s);
    EXPECT_NE(Content(authority), made);
}

TEST_F(ParkGatesTest, WhatCantBeOpenedIsNamed) {
    const QString port = QString::number(server->serverPort());
    EXPECT_FALSE(gates->OpenProxies(server->serverPort()));
    EXPECT_TRUE(gates->ErrorText().startsWith(u"can't open port %1: "_s.arg(port)));
    EXPECT_FALSE(gates->OpenProxies(65535));
    EXPECT_FALSE(gates->OpenTls(0, folder.filePath(u"park.log/x"_s)));
    EXPECT_TRUE(gates->ErrorText().startsWith(u"can't write certificates to "_s));
}

} // namespace
