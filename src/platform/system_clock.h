#pragma once

#include "ports/clock.h"

namespace lanterra {

/// The clock of the machine, in its local time zone.
class SystemClock final : public Clock {
public:
    float Timer() const override;
    QDateTime Now() const override;
    std::chrono::milliseconds Elapsed() const override;

private:
    const std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

} // namespace lanterra
