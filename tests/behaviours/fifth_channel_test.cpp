#include "platform/qt_event_queue.h"
#include "tests/behaviours/client_fetch.h"
#include "tests/behaviours/park_process.h"

#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class FifthChannelTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(park.Stands() && hostilePark.Stands()); }

    void HaveFetchedWithoutEnd(const QString &address) {
        auto client = std::make_unique<SocketHttpClient>();
        SocketHttpClient *const made = client.get();
        made->SetTarget(address);
        made->SetSaveFile(folder.filePath(QString::number(hostile.size())));
        made->SetCertificateAuthorities(hostilePark.Authorities());
        QObject::connect(made, &HttpClient::Connected, made, [made] { made->SendGet(); });
        QObject::connect(made, &HttpClient::Closing, made, &HttpClient::ConnectToHost);
        QObject::connect(made, &HttpClient::Error, made, [this, made] {
            ++failures;
            made->ConnectToHost();
        });
        made->ConnectToHost();
        hostile.push_back(std::move(client));
    }

    /// The time in milliseconds that a quarter of fifty quick exchanges stays below. A busy machine slows
    /// some of them, a channel that holds up the loop all.
    double QuartileOfFifty() {
        const FetchCase quick{u"plain"_s, u"plain"_s, u"http://127.0.0.1:%1/behave/plain"_s.arg(park.Port()),
                              0,          u"ok"_s,    u"11 bytes"_s};
        std::vector<double> times;
        for (int i = 0; i < 50; ++i) {
            QElapsedTimer timer;
            timer.start();
            const ClientFetch fetch(quick, folder.filePath(u"fifth"_s), {});
            while (!fetch.HasEnded())
                queue.Wait(std::chrono::seconds(1));
            EXPECT_EQ(fetch.Result().outcome.toStdString(), "ok");
            times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        }
        std::nth_element(times.begin(), times.begin() + 12, times.end());
        return times[12];
    }

    QString Hostile(const QString &page) const {
        return u"http://127.0.0.1:%1/behave/%2"_s.arg(hostilePark.Port()).arg(page);
    }

    ParkProcess park;
    ParkProcess hostilePark; ///< of its own, so that the fifth doesn't wait for a busy server
    QTemporaryDir folder;
    QtEventQueue queue;
    std::vector<std::unique_ptr<SocketHttpClient>> hostile;
    int failures = 0;
};

// One loop serves all channels, so a single one that doesn't give way would hold up the others by the
// hundreds of milliseconds that its whole answer takes.
TEST_F(FifthChannelTest, IsNotSlowedByFourHostileOnes) {
    const double alone = QuartileOfFifty();
    HaveFetchedWithoutEnd(Hostile(u"silence"_s));
    HaveFetchedWithoutEnd(Hostile(u"drip"_s));
    HaveFetchedWithoutEnd(Hostile(u"length-too-large"_s));
    HaveFetchedWithoutEnd(u"https://127.0.0.1:%1/behave/endless-body"_s.arg(hostilePark.GatePort(u"tls"_s)));
    const double amongThem = QuartileOfFifty();
    RecordProperty("alone", std::to_string(alone));
    RecordProperty("amongThem", std::to_string(amongThem));
    EXPECT_LE(amongThem, 1.5 * alone + 20) << "alone " << alone << " ms";
    EXPECT_GT(failures, 0) << "the hostile ones were at work";
    EXPECT_GT(hostile.back()->BodyBytes(), 0);
}

} // namespace
