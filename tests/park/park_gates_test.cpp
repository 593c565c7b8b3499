#include "park/park_gates.h"
#include "tests/park/park_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class ParkGatesTest : public ParkFixture {
protected:
    ParkGates gates{*server.Content(), server.serverPort(), log, 0};
};

TEST_F(ParkGatesTest, TheProxyLeadsToThePracticeWebOnly) {
    ASSERT_TRUE(gates.OpenProxies(0));
    quint16 port = 0;
    for (const OpenGate &row : gates.Open())
        port = row.gate.name == u"proxy"_s ? row.port : port;
    const auto ask = [port](const QByteArray &line) { return RawPeer(port).Says(line).HearsToTheEnd(); };
    const QByteArray own = "127.0.0.1:" + QByteArray::number(server.serverPort());
    EXPECT_TRUE(ask("GET http://" + own + "/behave/plain HTTP/1.1\r\n\r\n").endsWith("\r\n\r\nhello body\n"));
    EXPECT_TRUE(LogLines().last().contains(u" GET http://127.0.0.1:"_s)) << LogLines().last().toStdString();
    for (const QByteArray line : {"GET http://elsewhere.example/", "CONNECT 127.0.0.1:1", "GET /received",
                                  "CONNECT 10.0.0.1:80", "GET ftp://127.0.0.1/"})
        EXPECT_TRUE(ask(line + " HTTP/1.1\r\n\r\n").startsWith("HTTP/1.1 403 ")) << line.toStdString();
    EXPECT_TRUE(ask("hello HTTP/1.1\r\n\r\n").startsWith("HTTP/1.1 400 "));
    EXPECT_TRUE(ask("GET /" + QByteArray(70'000, 'x')).startsWith("HTTP/1.1 431 "));
}

TEST_F(ParkGatesTest, CertificatesAreKeptInTheirFolder) {
    const QString path = folder.filePath(u"certificates"_s);
    const auto authority = [&path] {
        EXPECT_EQ(PracticeCertificates(path).ErrorText(), u""_s);
        return BytesOf(path + u"/authority.pem"_s);
    };
    const QByteArray made = authority();
    EXPECT_TRUE(made.startsWith("-----BEGIN CERTIFICATE-----"));
    EXPECT_EQ(authority(), made);
    ASSERT_TRUE(QFile::remove(path + u"/expired.pem"_s));
    EXPECT_NE(authority(), made);
}

TEST_F(ParkGatesTest, WhatCantBeOpenedIsNamed) {
    EXPECT_FALSE(gates.OpenProxies(server.serverPort()));
    EXPECT_TRUE(gates.ErrorText().startsWith(u"can't open port %1: "_s.arg(server.serverPort())));
    EXPECT_FALSE(gates.OpenProxies(65535));
    EXPECT_FALSE(gates.OpenTls(0, folder.filePath(u"park.log/x"_s)));
    EXPECT_TRUE(gates.ErrorText().startsWith(u"can't write certificates to "_s));
}

} // namespace
