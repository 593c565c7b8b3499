#include "park/practice_certificates.h"
#include "tests/platform/client_fixture.h"

#include <QSslConfiguration>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SocketHttpClientTlsTest : public ClientFixture {
protected:
    SocketHttpClientTlsTest() { client->SetTarget(Address(u"https"_s)); }

    /// The server gets this certificate of the practice web, whose authority the client trusts.
    void Secure(const QString &certificate = u"good"_s) {
        const PracticeCertificates certificates(folder.path());
        ASSERT_EQ(certificates.ErrorText(), QString());
        server.tls = certificates.ConfigurationOf(certificate);
        client->SetCertificateAuthorities(QSslCertificate::fromPath(folder.filePath(u"authority.pem"_s)));
    }

    void ExpectRefusal(const QByteArray &answer, Then then, const QString &reason) {
        EXPECT_TRUE(Exchange(answer, then).startsWith(u"Error"_s)) << events.toStdString();
        EXPECT_EQ(client->FailureReason(), reason);
        EXPECT_EQ(Page(), "old page");
    }
};

TEST_F(SocketHttpClientTlsTest, AnAnswerThatComesBeforeTheRequestWasReadCounts) {
    Secure();
    QObject::disconnect(client.get(), &HttpClient::Connected, nullptr, nullptr);
    QObject::connect(client.get(), &HttpClient::Connected, client.get(), [&] {
        EXPECT_TRUE(WaitUntil([&] { return server.HandshakeIsThrough(); }));
        server.AnswerUnread();
        client->SetRequestHeaders("CONTENT-LENGTH: 900000\r\n\r\n" + QByteArray(900000, 'x'));
        client->SendPost();
        Log(u"Connected"_s);
    });
    EXPECT_EQ(Exchange(good, Then::Reset), done) << client->FailureReason().toStdString();
    EXPECT_EQ(Page(), "hello body\n");
}

TEST_F(SocketHttpClientTlsTest, ALargeRequestAndALargeAnswerArriveWhole) {
    posts = true;
    headers = "CONTENT-LENGTH: 5000000\r\n\r\n" + QByteArray(4999999, 'x') + '.';
    for (const QString &scheme : {u"http"_s, u"https"_s}) {
        if (scheme == u"https")
            Secure();
        client->SetTarget(Address(scheme));
        server.received.clear();
        Begin();
        EXPECT_TRUE(WaitUntil([this] { return server.received.endsWith('.'); })) << scheme.toStdString();
        EXPECT_EQ(server.received.size() - server.received.indexOf("\r\n\r\n"), 5000004);
        client->Abort();
    }
    posts = false;
    headers = "HOST: z\r\n";
    EXPECT_EQ(Exchange("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(5000000, 'x'), Then::Close), done);
    EXPECT_EQ(client->BodyBytes(), 5000000);
}

TEST_F(SocketHttpClientTlsTest, CertificatesAreChecked) {
    const std::pair<QString, QString> cases[] = {
        {u"expired"_s, u"The certificate has expired"_s},
        {u"other-host"_s, u"The certificate belongs to another host"_s},
        {u"stranger"_s, u"The certificate is not trusted"_s}};
    for (const auto &[certificate, reason] : cases) {
        Secure(certificate);
        ExpectRefusal(good, Then::Hold, reason);
    }
    EXPECT_EQ(server.received, "");
}

TEST_F(SocketHttpClientTlsTest, AFailedHandshakeTellsItsReason) {
    const QByteArray protocolVersionAlert("\x15\x03\x01\0\x02\x02\x46", 7);
    ExpectRefusal("HTTP/1.1 400 Bad\r\n\r\n", Then::Hold, u"The server doesn't speak TLS on this port"_s);
    ExpectRefusal(protocolVersionAlert, Then::Hold, u"The server offers no TLS version that is safe"_s);
    ExpectRefusal("", Then::Close, u"The server closed the connection during the TLS handshake"_s);
}

TEST_F(SocketHttpClientTlsTest, AProxyOpensATunnelToTheServer) {
    Secure();
    server.expectsConnect = true;
    client->SetTarget(u"https://localhost/x"_s);
    UseProxy(server.serverPort());
    EXPECT_EQ(Exchange(good), done) << client->FailureReason().toStdString();
    EXPECT_EQ(server.received, "CONNECT localhost:443 HTTP/1.1\r\nHost: localhost:443\r\n\r\n"
                               "GET /x HTTP/1.1\r\nHOST: z\r\n\r\n");
}

TEST_F(SocketHttpClientTlsTest, ARefusedTunnelFailsAndItsPageIsNotTheSites) {
    UseProxy(server.serverPort());
    const QString unclear = u"The proxy's answer can't be understood: "_s;
    ExpectRefusal("HTTP/1.1 407 Who\r\n\r\npage", Then::Hold, u"The proxy refused the connection (407)"_s);
    ExpectRefusal("HTTP/1.1 200 OK\r\n\r\npage", Then::Hold, unclear + u"it is too long"_s);
    ExpectRefusal("hello\n", Then::Hold, unclear + u"The server doesn't answer in HTTP"_s);
    ExpectRefusal("", Then::Close, u"The proxy can't be used: The connection was closed"_s);
}

} // namespace
