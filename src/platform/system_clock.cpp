#include "platform/system_clock.h"

namespace lanterra {

float SystemClock::Timer() const {
    return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / 1000.0F;
}

QDateTime SystemClock::Now() const { return QDateTime::currentDateTime(); }

std::chrono::milliseconds SystemClock::Elapsed() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
}

} // namespace lanterra
