#include "platform/qt_event_queue.h"
#include "tests/behaviours/client_fetch.h"
#include "tests/behaviours/park_process.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <vector>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class FifthChannelTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(park.Stands() && hostilePark.Stands()); }

    std::unique_ptr<ClientFetch> Fetch(const QString &origin, const QString &page) {
        FetchCase wanted;
        wanted.address = origin + u"/behave/"_s + page;
        return std::make_unique<ClientFetch>(wanted, folder.filePath(page), hostilePark.Authorities());
    }

    /// The time in milliseconds that a quarter of fifty quick exchanges stays below, while these others go
    /// on. A busy machine slows some of them, a channel that holds up the loop all.
    double QuartileOfFifty(const QStringList &others) {
        std::vector<double> times;
        std::map<QString, std::unique_ptr<ClientFetch>> hostile;
        for (int i = 0; i < 50; ++i) {
            for (const QString &page : others) {
                std::unique_ptr<ClientFetch> &fetch = hostile[page];
                failures += fetch && fetch->HasEnded() ? 1 : 0;
                if (!fetch || fetch->HasEnded())
                    fetch = Fetch(u"https://127.0.0.1:%1"_s.arg(hostilePark.GatePort(u"tls"_s)), page);
            }
            QElapsedTimer timer;
            timer.start();
            const auto quick = Fetch(u"http://127.0.0.1:%1"_s.arg(park.Port()), u"plain"_s);
            while (!quick->HasEnded())
                queue.Wait(std::chrono::seconds(1));
            EXPECT_EQ(quick->Result().outcome.toStdString(), "ok");
            times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        }
        std::nth_element(times.begin(), times.begin() + 12, times.end());
        return times[12];
    }

    ParkProcess park;
    ParkProcess hostilePark; ///< of its own, so that the fifth doesn't wait for a busy server
    QTemporaryDir folder;
    QtEventQueue queue;
    int failures = 0; ///< of the hostile ones
};

// One loop serves all channels, so a single one that doesn't give way would hold up the others by the
// hundreds of milliseconds that its whole answer takes.
TEST_F(FifthChannelTest, IsNotSlowedByFourHostileOnes) {
    const double alone = QuartileOfFifty({});
    const double amongThem =
        QuartileOfFifty({u"silence"_s, u"drip"_s, u"length-too-large"_s, u"endless-body"_s});
    RecordProperty("alone", std::to_string(alone));
    RecordProperty("amongThem", std::to_string(amongThem));
    EXPECT_LE(amongThem, 1.5 * alone + 20) << "alone " << alone << " ms";
    EXPECT_GT(failures, 0) << "the hostile ones were at work";
    EXPECT_GT(QFileInfo(folder.filePath(u"endless-body"_s)).size(), 0);
}

} // namespace
