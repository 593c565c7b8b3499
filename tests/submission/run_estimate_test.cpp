#include "tests/submission/run_fixture.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

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
        EXPECT_EQ(estimate.Total(), 5);
        EXPECT_FALSE(estimate.SecondsLeft());
        changes = 0;
        clock.Advance(1500ms);
        Answer(1, "200 OK");
        Fail(2); // at the same moment, so it is told with a later change
        EXPECT_EQ(changes, 1);
        EXPECT_EQ(estimate.SecondsLeft(), 3) << "2.25 s, rounded up";
        EXPECT_EQ(estimate.Fraction(), 0.4);
        for (const QDeadlineTimer deadline(5s); changes < 2 && !deadline.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
        EXPECT_EQ(changes, 2) << "the last of a burst is told, too";
        clock.Advance(250ms);
        Fail(3);
        EXPECT_EQ(changes, 3);
        Fail(4);
        Fail(5);
    });
    PressSubmit();
    EXPECT_EQ(changes, 4) << "the end is told at once";
    EXPECT_EQ(estimate.Covered(), 5);
    EXPECT_FALSE(estimate.SecondsLeft());
}

TEST_F(RunEstimateTest, ANoticeTellsWhatTheRunCouldNotStore) {
    GivenSites(Numbered(1));
    EverySiteAnswers("200 OK");
    QDir().mkpath(home.filePath(u"Projects/Project1/report.htm"_s)); // a folder stands in its place
    PressSubmit();
    EXPECT_EQ(program->frame.Notice.Caption(), u"The report could not be written: "_s + Result().reportFile);
    EXPECT_TRUE(dialogs.boxes.empty());
    QDir().rmdir(Result().reportFile);
    PressSubmit();
    EXPECT_EQ(program->frame.Notice.Caption(), QString());
}

} // namespace
