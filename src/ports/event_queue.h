#pragma once

#include <chrono>

namespace lanterra {

/// The one queue of events of the process. Long work yields to it, and handlers run inside those yields, so
/// whatever a caller knew before a yield can have changed behind it.
class EventQueue {
public:
    /// A wait without an end of its own.
    static constexpr std::chrono::milliseconds withoutEnd = std::chrono::milliseconds::max();

    virtual ~EventQueue() = default;

    /// Runs the handlers of all events that are pending now and returns. Never sleeps.
    virtual void Yield() = 0;

    /// Sleeps inside the queue until an event was handled or `atMost` has passed, whichever comes first. A
    /// wait of zero or less is a Yield. It may return early without either; callers test their condition and
    /// call again.
    virtual void Wait(std::chrono::milliseconds atMost) = 0;

    /// True once the program is ending. From then on Wait never sleeps and every wait loop leaves at once.
    virtual bool Closing() const = 0;
};

} // namespace lanterra
