#pragma once

#include "ports/clock.h"

namespace lanterra {

/// A clock that stands still until a test moves it. It starts at noon.
class FakeClock final : public Clock {
public:
    float Timer() const override { return static_cast<float>(now.time().msecsSinceStartOfDay()) / 1000.0F; }
    QDateTime Now() const override { return now; }
    std::chrono::milliseconds Elapsed() const override { return elapsed; }

    /// Moves both times on. The time of day passes midnight as a real one does.
    void Advance(std::chrono::milliseconds step) {
        now = now.addMSecs(step.count());
        elapsed += step;
    }
    void SetTime(QTime time) { now.setTime(time); }

private:
    QDateTime now{QDate(2024, 3, 5), QTime(12, 0)};
    std::chrono::milliseconds elapsed{0};
};

} // namespace lanterra
