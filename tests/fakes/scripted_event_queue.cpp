#include "tests/fakes/scripted_event_queue.h"

#include <stdexcept>

namespace lanterra {

namespace {
constexpr int tooManyIdleWaits = 10000; ///< a loop that waits this often for nothing will never end
}

void ScriptedEventQueue::Yield() { RunDue(); }

void ScriptedEventQueue::Wait(std::chrono::milliseconds atMost) {
    if (RunDue() || closing) {
        idleWaits = 0;
        return;
    }
    if (!idle.empty()) {
        const Step step = std::move(idle.front());
        idle.pop_front();
        step();
        return;
    }
    if (atMost == withoutEnd || ++idleWaits > tooManyIdleWaits)
        throw std::logic_error("the program waits for an event that never comes");
    if (atMost.count() > 0)
        clock.Advance(atMost);
}

// Runs what was due when it was called: a step that posts another one leaves it for the next yield.
bool ScriptedEventQueue::RunDue() {
    ++yields;
    std::deque<Step> due;
    due.swap(posted);
    const auto [first, last] = timed.equal_range(yields);
    for (auto entry = first; entry != last; ++entry)
        due.push_back(entry->second);
    timed.erase(first, last);
    for (const Step &step : due)
        step();
    return !due.empty();
}

} // namespace lanterra
