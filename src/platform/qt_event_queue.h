#pragma once

#include "ports/event_queue.h"

#include <atomic>

namespace lanterra {

/// The event queue of a running program: Qt's own, of the thread that created the application object.
class QtEventQueue final : public EventQueue {
public:
    void Yield() override;
    void Wait(std::chrono::milliseconds atMost) override;
    bool Closing() const override { return closing; }

    /// Says that the program is ending, for good, and wakes a Wait that is under way. May be called from any
    /// thread.
    void Close();

private:
    std::atomic<bool> closing = false;
};

} // namespace lanterra
