#include "tests/submission/run_fixture.h"
#include "tests/wait_until.h"

using namespace lanterra;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using RunEstimateTest = RunFixture;

TEST_F(RunEstimateTest, TellsTheRestOfTheRunAndNotTooOften) {
    GivenSites(Numbered(5));
    const RunEstimate &estimate = program->runEstimate;
    int changes = 0;
    QObject::connect(&estimate, &RunEstimate::Changed, [&] { ++changes; });
    WhenWaiting([&] {
        EXPECT_FALSE(estimate.SecondsLeft());
        changes = 0;
        clock.Advance(1500ms);
        Answer(1, "200 OK");
        Fail(2);
        EXPECT_EQ(changes, 1);
        EXPECT_EQ(estimate.SecondsLeft(), 3) << "2.25 s, rounded up";
        EXPECT_EQ(estimate.Fraction(), 0.4);
        EXPECT_TRUE(WaitUntil([&] { return changes == 2; })) << "the last of a burst is told, too";
        clock.Advance(2600ms);
        EXPECT_FALSE(estimate.SecondsLeft()) << "the sites that are left hang";
        Run().cmdCancel_Click();
    });
    PressSubmit();
    EXPECT_FALSE(estimate.SecondsLeft());
}

TEST_F(RunEstimateTest, ANoticeTellsWhatTheRunCouldNotStore) {
    GivenSites(Numbered(1));
    QDir().mkpath(home.filePath(u"Projects/Project1/report.htm"_s)); // a folder stands in its place
    SubmitAnswered("200 OK");
    EXPECT_EQ(program->frame.Notice.Caption(), u"The report could not be written: "_s + Result().reportFile);
}

} // namespace
