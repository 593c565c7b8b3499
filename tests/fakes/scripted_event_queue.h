#pragma once

#include "ports/event_queue.h"
#include "tests/fakes/fake_clock.h"

#include <deque>
#include <functional>
#include <map>

namespace lanterra {

/// A queue without time. Steps that a test has posted run at the next yield; a step can also be tied to the
/// n-th yield from now. A wait with nothing to run moves the clock on by the time it was given instead of
/// sleeping.
class ScriptedEventQueue final : public EventQueue {
public:
    using Step = std::function<void()>;

    explicit ScriptedEventQueue(FakeClock &fakeClock) : clock(fakeClock) {}

    void Yield() override;
    void Wait(std::chrono::milliseconds atMost) override;
    bool Closing() const override { return closing; }

    /// Runs at the next yield or wait, behind what was posted before.
    void Post(Step step) { posted.push_back(std::move(step)); }

    /// Runs at the n-th yield or wait from now, 1 being the next.
    void AtYield(int n, Step step) { timed.emplace(yields + n, std::move(step)); }

    /// Runs when a wait finds nothing posted, one step a wait, in this order. The clock then stands.
    void WhenIdle(Step step) { idle.push_back(std::move(step)); }

    /// False takes it back, for a program that is started anew.
    void Close(bool on = true) { closing = on; }
    int Yields() const { return yields; }

private:
    bool RunDue();

    FakeClock &clock;
    std::deque<Step> posted;
    std::multimap<int, Step> timed; ///< by the number of the yield
    std::deque<Step> idle;
    int yields = 0;
    int idleWaits = 0; ///< in a row
    bool closing = false;
};

} // namespace lanterra
