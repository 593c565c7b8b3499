#include "platform/qt_event_queue.h"
#include "platform/system_clock.h"

#include <QTimer>
#include <gtest/gtest.h>
#include <thread>

using namespace lanterra;
using namespace std::chrono_literals;

namespace {

class QtEventQueueTest : public testing::Test {
protected:
    QtEventQueueTest() {
        timer.setSingleShot(true);
        timer.callOnTimeout([this] { handled = true; });
    }

    QtEventQueue queue;
    SystemClock clock;
    QTimer timer;
    bool handled = false;
};

TEST_F(QtEventQueueTest, AWaitSleepsUntilItsLimitWithoutUsingTheProcessor) {
    const std::clock_t processorBefore = std::clock();
    int turns = 0;
    for (; clock.Elapsed() < 200ms; ++turns)
        queue.Wait(200ms - clock.Elapsed());
    EXPECT_LT(clock.Elapsed(), 2s);
    EXPECT_LT(turns, 20);
    EXPECT_LT(std::clock() - processorBefore, CLOCKS_PER_SEC / 20);
}

TEST_F(QtEventQueueTest, AnEventEndsAWaitWithoutEnd) {
    timer.start(1ms);
    while (!handled)
        queue.Wait(EventQueue::withoutEnd);
    EXPECT_LT(clock.Elapsed(), 5s);
}

TEST_F(QtEventQueueTest, AYieldRunsWhatIsPendingAndReturns) {
    timer.start(0ms);
    queue.Yield();
    EXPECT_TRUE(handled);
    queue.Wait(0ms);
    queue.Wait(-5ms);
    EXPECT_LT(clock.Elapsed(), 1s);
}

TEST_F(QtEventQueueTest, ClosingWakesAWaitAndNoLaterOneSleeps) {
    std::thread other([this] { queue.Close(); });
    while (!queue.Closing())
        queue.Wait(EventQueue::withoutEnd);
    other.join();
    queue.Wait(EventQueue::withoutEnd);
    EXPECT_LT(clock.Elapsed(), 5s);
}

TEST_F(QtEventQueueTest, TimerCountsSecondsSinceLocalMidnight) {
    const int before = QTime::currentTime().msecsSinceStartOfDay();
    const float seconds = clock.Timer();
    const int after = QTime::currentTime().msecsSinceStartOfDay();
    const float midnightPassed = after < before ? 86400.0F : 0.0F;
    EXPECT_GE(seconds + midnightPassed, static_cast<float>(before) / 1000.0F);
    EXPECT_LE(seconds, static_cast<float>(after) / 1000.0F + midnightPassed);
}

} // namespace
