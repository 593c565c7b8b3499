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
    QtEventQueue queue;
    SystemClock clock;
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

TEST_F(QtEventQueueTest, AnEventEndsAWaitWithoutEndAndAYieldReturns) {
    bool handled = false;
    for (const auto delay : {0ms, 1ms}) {
        handled = false;
        QTimer::singleShot(delay, [&] { handled = true; });
        queue.Yield();
        EXPECT_TRUE(handled || delay > 0ms);
        while (!handled)
            queue.Wait(EventQueue::withoutEnd);
    }
    queue.Wait(0ms);
    queue.Wait(-5ms);
    EXPECT_LT(clock.Elapsed(), 5s);
}

TEST_F(QtEventQueueTest, ClosingWakesAWaitAndNoLaterOneSleeps) {
    std::thread other([this] { queue.Close(); });
    while (!queue.Closing())
        queue.Wait(EventQueue::withoutEnd);
    other.join();
    queue.Wait(EventQueue::withoutEnd);
    EXPECT_LT(clock.Elapsed(), 5s);
}

} // namespace
