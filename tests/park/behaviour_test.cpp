#include "park/behaviour.h"
#include "park/park_connection.h"
#include "tests/park/park_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

using BehaviourTest = ParkFixture;

TEST_F(BehaviourTest, PlaysTheBytesOfTheTable) {
    const QByteArray whole = "HTTP/1.1 200 OK\r\nContent-Length: 11\r\n\r\nhello body\n";
    EXPECT_EQ(Get("/behave/bare-lf"), "HTTP/1.1 200 OK\nContent-Length: 11\n\nhello body\n");
    EXPECT_EQ(Get("/behave/byte-by-byte"), whole);
    EXPECT_EQ(Say("POST /behave/early-whole HTTP/1.1\r\n"), whole) << "it doesn't wait for the request";
    EXPECT_TRUE(Get("/behave/nul-in-header").contains(QByteArray("X-Note: a\0b\r\n", 13)));
    EXPECT_EQ(Get("/behave/reset-in-body"), "HTTP/1.1 200 OK\r\n\r\nhello ");
    EXPECT_EQ(Get("/behave/large").size(), 8'388'608 + 44);
    EXPECT_EQ(Get("/behave/many-headers").count("X-A: b\r\n"), 5100);
    EXPECT_EQ(Get("/cindertrail/cgi-bin/add?page=http://a.example/&mailto=a@b.example"), "");
    EXPECT_EQ(server.Content()->Received().Receipts().front().outcome, u"reset"_s);
}

TEST_F(BehaviourTest, HeldAndEndlessOnesStopWithThePeer) {
    const std::pair<QByteArray, qsizetype> pages[] = {{"keep-alive", 74}, {"endless-headers", 1'000'000}};
    for (const auto &[page, bytes] : pages) {
        RawPeer peer(server.serverPort());
        EXPECT_GE(peer.Says("GET /behave/" + page + " HTTP/1.1\r\n\r\n").Hears(bytes).size(), bytes);
        peer.HangsUp();
        EXPECT_TRUE(WaitUntil([this] { return server.findChildren<ParkConnection *>().isEmpty(); }));
    }
    EXPECT_TRUE(LogLines().first().endsWith(u" GET /behave/keep-alive - 74"_s));
}

} // namespace
