#include "tests/platform/client_fixture.h"

#include <QThread>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

using SocketHttpClientTest = ClientFixture;

TEST_F(SocketHttpClientTest, ReachesIPv6AddressesAndProxies) {
    RawServer sixth(QHostAddress::LocalHostIPv6);
    ASSERT_TRUE(sixth.isListening());
    sixth.answer = good;
    client->SetTarget(u"http://[::1]:%1"_s.arg(sixth.serverPort()));
    EXPECT_EQ(Exchange(), done);
    EXPECT_EQ(sixth.received, "GET / HTTP/1.1\r\nHOST: z\r\n\r\n");
    UseProxy(server.serverPort());
    client->SetTarget(u"http://site.example:8080/x?q"_s);
    EXPECT_EQ(Exchange(good), done);
    EXPECT_EQ(server.received, "GET http://site.example:8080/x?q HTTP/1.1\r\nHOST: z\r\n\r\n");
}

TEST_F(SocketHttpClientTest, AnAnswerThatComesBeforeTheRequestWasReadCounts) {
    posts = true;
    headers = "CONTENT-LENGTH: 9000000\r\n\r\n" + QByteArray(9000000, 'x');
    QThread other; // so that some of the resets come in the middle of a write
    QObject::connect(
        &other, &QThread::finished, &server, [this] { server.moveToThread(client->thread()); },
        Qt::DirectConnection);
    server.answer = good;
    server.then = Then::Reset;
    server.moveToThread(&other);
    other.start();
    for (int i = 0; i < 50; ++i)
        EXPECT_EQ(Exchange(), done);
    other.quit();
    other.wait();
    EXPECT_EQ(server.connections, 50);
}

TEST_F(SocketHttpClientTest, DataBeginsWithTheFinalHeaderAndTextIsKeptOnRequestOnly) {
    const QByteArray answer = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n2\r\nh\xe9\r\n0\r\n\r\n";
    for (const bool keep : {false, true}) {
        client->SetKeepResponseText(keep);
        EXPECT_EQ(Exchange("HTTP/1.1 100 Continue\r\n\r\n" + answer + "HTTP/1.1 404 second"), done);
        EXPECT_EQ(data, answer);
        EXPECT_EQ(client->ResponseText(), keep ? u"h\u00e9"_s : QString());
        EXPECT_EQ(client->BodyBytes(), 2);
    }
}

TEST_F(SocketHttpClientTest, APageThatCantBeWrittenChangesNoVerdict) {
    for (const QString &path : {folder.path(), folder.filePath(u"no/folder"_s), QString()}) {
        client->SetSaveFile(path);
        EXPECT_EQ(Exchange(good), done);
        EXPECT_EQ(client->BodyBytes(), 11);
    }
}

TEST_F(SocketHttpClientTest, FailuresComeAtALaterTurnWithTheirReason) {
    const QString closed = u"http://127.0.0.1:1/"_s;
    const QList<QStringList> rows{
        {closed, u""_s, u"Error 61"_s, u"Connection refused"_s},
        {closed, u"127.0.0.1"_s, u"Error 61"_s, u"The proxy can't be used: Connection refused"_s},
        {closed, u"a b"_s, u"Error 1001"_s, u"The proxy can't be used: The host name was not found"_s},
        {u"news:a"_s, u""_s, u"Error -1"_s, u"The address doesn't begin with http:// or https://"_s},
    };
    client->SetProxyPort(1);
    for (const QStringList &row : rows) {
        client->SetTarget(row[0]);
        client->SetProxyServer(row[1]);
        Begin();
        EXPECT_EQ(events, u""_s);
        EXPECT_EQ(Exchange(), row[2]);
        EXPECT_EQ(client->FailureReason(), row[3]);
    }
}

TEST_F(SocketHttpClientTest, AbortDropsWhatIsDueAndTheNextExchangeStartsClean) {
    server.answer = good;
    for (const QString &stop : {u"Connected"_s, u"Data"_s, u"Done"_s}) {
        during = [&](const QString &event) {
            if (event == stop)
                client->Abort();
        };
        Begin();
        EXPECT_TRUE(WaitUntil([&] { return events.endsWith(stop); }));
        during = nullptr;
        EXPECT_EQ(Exchange(), done);
    }
    client->Abort();
    client->AbortWithError();
    EXPECT_EQ(Exchange(), done);
}

TEST_F(SocketHttpClientTest, AbortWithErrorRaisesItOnceAtALaterTurn) {
    Begin();
    ASSERT_TRUE(WaitUntil([this] { return !server.received.isEmpty(); }));
    client->AbortWithError();
    EXPECT_EQ(events, u"Connected"_s);
    queue.Yield();
    client->AbortWithError();
    queue.Yield();
    EXPECT_EQ(events, u"Connected Error 53"_s);
    EXPECT_EQ(client->FailureReason(), u"The request was aborted"_s);
    EXPECT_EQ(Page(), "old page");
}

TEST_F(SocketHttpClientTest, NoEventComesWhileAHandlerRunsUnlessItRunsAWholeNewExchange) {
    during = [this](const QString &event) {
        const QString before = events;
        for (int i = 0; i < 50; ++i)
            queue.Yield();
        EXPECT_EQ(events, before);
        if (event != u"Done")
            return;
        during = nullptr;
        EXPECT_EQ(Exchange(), done);
        events += u" nested"_s;
    };
    EXPECT_EQ(Exchange(good, Then::Close), done + u" nested"_s);
}

TEST_F(SocketHttpClientTest, MayBeDeletedInsideEachOfItsEvents) {
    server.then = Then::Close;
    for (const QString &last : {u"Connected"_s, u"Data"_s, u"Done"_s, u"Closing"_s, u"Error 54"_s}) {
        server.answer = last == u"Error 54" ? QByteArray() : good;
        Renew();
        during = [&](const QString &event) {
            if (event == last)
                client.reset();
        };
        Begin();
        EXPECT_TRUE(WaitUntil([this] { return !client; })) << last.toStdString();
        queue.Yield();
        EXPECT_TRUE(events.endsWith(last));
    }
}

} // namespace
