#include "tests/park/park_fixture.h"

#include <QCoreApplication>
#include <QElapsedTimer>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

using ParkServerTest = ParkFixture;

TEST_F(ParkServerTest, AnswersInTheFramingOfTheSite) {
    const QByteArray lengths = Get("/");
    const qsizetype body = lengths.indexOf("\r\n\r\n") + 4;
    EXPECT_TRUE(lengths.contains("Content-Length: " + QByteArray::number(lengths.size() - body) + "\r\n"));

    const QByteArray chunked =
        Get("/harbor-search/add.asp?u=http://a.example/&submitter=A&e_mail=a@b.example");
    EXPECT_TRUE(chunked.contains("Transfer-Encoding: chunked\r\n"));
    EXPECT_TRUE(chunked.contains("\r\n\r\n2bc\r\n"));
    EXPECT_TRUE(chunked.endsWith("\r\n0\r\n\r\n"));

    const QByteArray untilClose =
        Post("/harbor/register", "address=http://a.example/&k1=a&k2=b&k3=c&contact=a@b.example");
    EXPECT_FALSE(untilClose.contains("Content-Length"));
    EXPECT_TRUE(untilClose.endsWith("</html>\n"));

    const QByteArray redirected =
        Post("/ploverdex/cgi-bin/addurl.pl", "newurl=http://a.example/&description=x&mailto=a@b.example");
    EXPECT_TRUE(redirected.startsWith("HTTP/1.1 302 Found\r\n"));
    EXPECT_TRUE(
        redirected.contains("Location: " + server.Origin().toLatin1() + "/ploverdex/thanks.html\r\n"));
    EXPECT_TRUE(Get("/ploverdex/thanks.html").contains("Thank you for your submission to Ploverdex."));
}

TEST_F(ParkServerTest, ShowsWhatWasReceivedAsText) {
    Post("/harbor/register", "address=%3Cscript%3E&k1=%E9%80&%22=1");
    const QByteArray page = Get("/received?page=7");
    EXPECT_TRUE(page.contains("<th scope=\"row\">address</th><td>&lt;script&gt;</td>"));
    EXPECT_TRUE(page.contains("<td>é€</td>"));
    EXPECT_TRUE(page.contains("<th scope=\"row\">&quot;</th>"));
    EXPECT_FALSE(page.contains("<script"));
}

TEST_F(ParkServerTest, ServesSeveralRequestsOnOneConnection) {
    const QByteArray heard = Say("GET /counter/first HTTP/1.1\r\n\r\n"
                                 "GET /counter/later HTTP/1.1\r\nConnection: close\r\n\r\n");
    EXPECT_EQ(heard.count("HTTP/1.1 200 OK\r\n"), 2);
    EXPECT_TRUE(heard.endsWith("run counted\n"));
    EXPECT_EQ(server.Content()->Received().Total(), 2);
    EXPECT_TRUE(LogLines().last().contains(u" GET /counter/later 200 "_s)) << LogLines().last().toStdString();
}

TEST_F(ParkServerTest, SurvivesHostilePeers) {
    RawPeer half(server.serverPort());
    half.Says("POST /harbor/register HTTP/1.1\r\nContent-Length: 500\r\n\r\naddress=");
    const RawPeer silent(server.serverPort());
    EXPECT_TRUE(Say(QByteArray(300, '\xff') + '\n').startsWith("HTTP/1.1 400 "));
    EXPECT_TRUE(Say("GET /" + QByteArray(1'000'000, 'x')).startsWith("HTTP/1.1 431 "));
    RawPeer leaving(server.serverPort());
    leaving.Says("GET / HTTP/1.1\r\n\r\n").HangsUp();
    half.HangsUp();
    EXPECT_TRUE(Get("/../../etc/passwd").startsWith("HTTP/1.1 404 "));
    EXPECT_TRUE(Get("/harbor/register/").startsWith("HTTP/1.1 404 "));
    EXPECT_TRUE(Get("/ploverdex/cgi-bin/addurl.pl?newurl=x").startsWith("HTTP/1.1 405 "));
    EXPECT_TRUE(Get("/").startsWith("HTTP/1.1 200 "));
}

TEST_F(ParkServerTest, DoesNotPileUpAnswersForAPeerThatDoesNotReadThem) {
    RawPeer greedy(server.serverPort());
    greedy.DoesNotRead();
    greedy.Says(QByteArray("GET / HTTP/1.1\r\n\r\n").repeated(3000));
    EXPECT_TRUE(WaitUntil([this] { return LogLines().size() > 1; }));
    for (int turn = 0; turn < 10'000; ++turn)
        QCoreApplication::processEvents();
    EXPECT_LT(LogLines().size(), 1000);
}

TEST_F(ParkServerTest, DelaysAnswersByTheLatency) {
    ParkServer slow(60, log);
    ASSERT_TRUE(slow.Start(0));
    QElapsedTimer elapsed;
    elapsed.start();
    RawPeer(slow.serverPort())
        .Says("GET /counter/first HTTP/1.1\r\nConnection: close\r\n\r\n")
        .HearsToTheEnd();
    EXPECT_GE(elapsed.elapsed(), 60);
}

} // namespace
