#include "park/behaviour.h"
#include "park/park_connection.h"
#include "tests/park/park_fixture.h"
#include "tests/qt_printing.h"

#include <QRegularExpression>
#include <QSet>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class BehaviourTest : public ParkFixture {
protected:
    BehaviourTest() { GivenServer(); }

    bool AllConnectionsAreGone() {
        return RunUntil([this] { return server->findChildren<ParkConnection *>().isEmpty(); });
    }
};

TEST_F(BehaviourTest, PlaysTheBytesOfTheTable) {
    EXPECT_EQ(Get("/behave/bare-lf"), "HTTP/1.1 200 OK\nContent-Length: 11\n\nhello body\n");
    EXPECT_EQ(Get("/behave/byte-by-byte"), "HTTP/1.1 200 OK\r\nContent-Length: 11\r\n\r\nhello body\n");
    EXPECT_TRUE(Get("/behave/nul-in-header").contains(QByteArray("X-Note: a\0b\r\n", 13)));
    EXPECT_EQ(Get("/behave/close"), "");
    EXPECT_EQ(Get("/behave/reset"), "");
    EXPECT_EQ(Get("/behave/reset-in-body"), "HTTP/1.1 200 OK\r\n\r\nhello ");
    EXPECT_EQ(Get("/behave/large").size(), 8'388'608 + 44);
    EXPECT_EQ(Get("/behave/many-headers").count("X-A: b\r\n"), 5100);
}

TEST_F(BehaviourTest, HoldsTheConnectionUntilThePeerCloses) {
    RawPeer peer(*server);
    EXPECT_EQ(peer.Says("GET /behave/keep-alive HTTP/1.1\r\n\r\n").Hears(74).size(), 74);
    EXPECT_TRUE(peer.IsConnected());
    peer.HangsUp();
    EXPECT_TRUE(AllConnectionsAreGone());
    EXPECT_TRUE(LogLines().last().endsWith(u" GET /behave/keep-alive - 74"_s))
        << LogLines().last().toStdString();
}

TEST_F(BehaviourTest, EndlessOnesStopWithThePeer) {
    RawPeer peer(*server);
    peer.Says("GET /behave/endless-headers HTTP/1.1\r\n\r\n").Hears(1'000'000);
    peer.HangsUp();
    EXPECT_TRUE(AllConnectionsAreGone());
}

TEST_F(BehaviourTest, EarlyOnesDoNotWaitForTheRequest) {
    EXPECT_EQ(RawPeer(*server).Says("POST /behave/early-whole HTTP/1.1\r\n").HearsToTheEnd(),
              "HTTP/1.1 200 OK\r\nContent-Length: 11\r\n\r\nhello body\n");
}

TEST_F(BehaviourTest, SitesCanBehaveBadlyToo) {
    EXPECT_EQ(Get("/cindertrail/cgi-bin/add?page=http://a.example/&mailto=a@b.example"), "");
    EXPECT_EQ(server->Content()->Received().Receipts().front().outcome, u"reset"_s);
}

TEST_F(BehaviourTest, TheTableIsWellFormedAndListed) {
    const BehaviourTable table;
    QSet<QString> names;
    const QByteArray page = Get("/behave/");
    for (const Behaviour &row : table.Rows()) {
        EXPECT_TRUE(QRegularExpression(u"^[a-z0-9.-]+$"_s).match(row.name).hasMatch())
            << row.name.toStdString();
        EXPECT_FALSE(row.what.isEmpty()) << row.name.toStdString();
        EXPECT_TRUE(page.contains("href=\"/behave/" + row.name.toLatin1() + '"')) << row.name.toStdString();
        names.insert(row.name);
    }
    EXPECT_EQ(names.size(), table.Rows().size());
    EXPECT_EQ(table.Find(u"no such"), nullptr);
}

} // namespace
