#pragma once

#include <QDateTime>
#include <chrono>

namespace lanterra {

/// The time of day and a time that only grows. Tests set both.
class Clock {
public:
    virtual ~Clock() = default;

    /// Seconds since local midnight, 0 up to 86400, in single precision. It starts again from 0 at midnight,
    /// so a difference of two values can be negative; the run keeps it that way.
    virtual float Timer() const = 0;

    /// The local date and time, for reports and statistics.
    virtual QDateTime Now() const = 0;

    /// Time since some fixed moment of this process, never going back. For measured durations only.
    virtual std::chrono::milliseconds Elapsed() const = 0;
};

} // namespace lanterra
