#include "tests/park/park_fixture.h"
#include "tests/qt_printing.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <vector>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class ParkServerTest : public ParkFixture {};

TEST_F(ParkServerTest, AnswersInTheFramingOfTheSite) {
    GivenServer();
    const QByteArray lengths = Get("/");
    EXPECT_TRUE(lengths.startsWith("HTTP/1.1 200 OK\r\n"));
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
    EXPECT_TRUE(untilClose.contains("Connection: close\r\n"));
    EXPECT_TRUE(untilClose.endsWith("</html>\n"));
}

TEST_F(ParkServerTest, RedirectsWithAbsoluteAndRelativeAddressesThatLeadSomewhere) {
    GivenServer();
    const QByteArray absolute =
        Post("/ploverdex/cgi-bin/addurl.pl", "newurl=http://a.example/&description=x&mailto=a@b.example");
    EXPECT_TRUE(absolute.startsWith("HTTP/1.1 302 Found\r\n"));
    EXPECT_TRUE(absolute.contains("Location: " + server->Origin().toLatin1() + "/ploverdex/thanks.html\r\n"));
    EXPECT_TRUE(Get("/ploverdex/thanks.html").contains("Thank you for your submission to Ploverdex."));
    const QByteArray again = Get("/ploverdex/cgi-bin/addurl.pl?newurl=x");
    EXPECT_TRUE(again.startsWith("HTTP/1.1 405 ")) << again.left(40).toStdString();
}

TEST_F(ParkServerTest, ShowsWhatWasReceivedAsText) {
    GivenServer();
    Post("/harbor/register", "address=%3Cscript%3E&k1=%E9%80&%22=1");
    const QByteArray page = Get("/received?page=7");
    EXPECT_TRUE(page.contains("<th scope=\"row\">address</th><td>&lt;script&gt;</td>"));
    EXPECT_TRUE(page.contains("<td>é€</td>"));
    EXPECT_TRUE(page.contains("<th scope=\"row\">&quot;</th>"));
    EXPECT_TRUE(page.contains("<th scope=\"row\">CONTENT-LENGTH</th>"));
    EXPECT_FALSE(page.contains("<script"));
}

TEST_F(ParkServerTest, ServesSeveralRequestsOnOneConnection) {
    GivenServer();
    const QByteArray first = "GET /counter/first HTTP/1.1\r\n\r\n";
    const QByteArray last = "GET /counter/later HTTP/1.1\r\nConnection: close\r\n\r\n";
    const QByteArray heard = RawPeer(*server).Says(first + last).HearsToTheEnd();
    EXPECT_EQ(heard.count("HTTP/1.1 200 OK\r\n"), 2);
    EXPECT_TRUE(heard.endsWith("run counted\n"));
    EXPECT_EQ(server->Content()->Received().Total(), 2);
    EXPECT_TRUE(LogLines().last().contains(u" GET /counter/later 200 "_s)) << LogLines().last().toStdString();
}

TEST_F(ParkServerTest, SurvivesHostilePeers) {
    GivenServer();
    RawPeer half(*server);
    half.Says("POST /harbor/register HTTP/1.1\r\nContent-Length: 500\r\n\r\naddress=");
    RawPeer silent(*server);
    EXPECT_TRUE(
        RawPeer(*server).Says(QByteArray(300, '\xff') + '\n').HearsToTheEnd().startsWith("HTTP/1.1 400 "));
    const QByteArray huge = "GET /" + QByteArray(1'000'000, 'x');
    EXPECT_TRUE(RawPeer(*server).Says(huge).HearsToTheEnd().startsWith("HTTP/1.1 431 "));
    RawPeer leaving(*server);
    leaving.Says("GET / HTTP/1.1\r\n\r\n").HangsUp();
    half.HangsUp();
    EXPECT_TRUE(Get("/../../etc/passwd").startsWith("HTTP/1.1 404 "));
    EXPECT_TRUE(Get("/harbor/register/").startsWith("HTTP/1.1 404 "));
    EXPECT_TRUE(Get("/").startsWith("HTTP/1.1 200 "));
}

TEST_F(ParkServerTest, DoesNotPileUpAnswersForAPeerThatDoesNotReadThem) {
    GivenServer();
    RawPeer greedy(*server);
    greedy.DoesNotRead();
    greedy.Says(QByteArray("GET / HTTP/1.1\r\n\r\n").repeated(3000));
    EXPECT_TRUE(RunUntil([this] { return LogLines().size() > 1; }));
    for (int turn = 0; turn < 10'000; ++turn)
        QCoreApplication::processEvents();
    EXPECT_LT(LogLines().size(), 1000);
}

TEST_F(ParkServerTest, ServesFourHundredPeersAtOnce) {
    GivenServer();
    std::vector<std::unique_ptr<RawPeer>> peers(400); // two file descriptors each, of the usual 1,024
    for (auto &peer : peers)
        peer = std::make_unique<RawPeer>(*server);
    for (auto &peer : peers)
        peer->Says("GET /counter/later HTTP/1.1\r\nConnection: close\r\n\r\n");
    for (auto &peer : peers)
        EXPECT_TRUE(peer->HearsToTheEnd().endsWith("run counted\n"));
}

TEST_F(ParkServerTest, DelaysAnswersByTheLatency) {
    GivenServer(60);
    QElapsedTimer elapsed;
    elapsed.start();
    EXPECT_TRUE(Get("/counter/first").startsWith("HTTP/1.1 200 "));
    EXPECT_GE(elapsed.elapsed(), 60);
}

TEST_F(ParkServerTest, SaysThatAPortIsTaken) {
    GivenServer();
    ParkServer second(0, log);
    EXPECT_FALSE(second.Start(server->serverPort()));
    EXPECT_EQ(second.serverError(), QAbstractSocket::AddressInUseError);
}

} // namespace
