#include "submission/run_estimate.h"

#include <algorithm>
#include <cmath>

using namespace std::chrono_literals;

namespace lanterra {

namespace {
constexpr auto pace = 250ms;
}

RunEstimate::RunEstimate(const RunResult &runResult, const Clock &systemClock)
    : result(runResult), clock(systemClock) {
    for (QTimer *timer : {&later, &overdue}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &RunEstimate::Announce);
    }
    connect(&result, &RunResult::Begun, this, &RunEstimate::Announce);
    connect(&result, &RunResult::OutcomeChanged, this, &RunEstimate::Follow);
    connect(&result, &RunResult::Ended, this, &RunEstimate::Announce);
}

int RunEstimate::Covered() const { return result.SuccessfulCount() + result.FailedCount(); }

int RunEstimate::Total() const {
    const auto takesPart = [](const SiteOutcome &site) { return site.verdict != Verdict::NotSelected; };
    return static_cast<int>(std::count_if(result.outcomes.begin(), result.outcomes.end(), takesPart));
}

double RunEstimate::Fraction() const {
    const int total = Total();
    return total > 0 ? std::min(1.0, static_cast<double>(Covered()) / total) : 0;
}

std::optional<int> RunEstimate::SecondsLeft() const {
    const int covered = Covered();
    if (!result.UnderWay() || covered == 0)
        return {};
    const std::chrono::duration<double> left =
        result.Duration() * std::max(0, Total() - covered) / static_cast<double>(covered);
    if (clock.Elapsed() - result.LastVerdict() > left + pace)
        return {};
    return static_cast<int>(std::ceil(left.count()));
}

void RunEstimate::Follow() {
    const std::chrono::milliseconds wait = lastChange + pace - clock.Elapsed();
    if (wait <= 0ms)
        Announce();
    else if (!later.isActive())
        later.start(wait);
}

void RunEstimate::Announce() {
    later.stop();
    lastChange = clock.Elapsed();
    if (const std::optional<int> left = SecondsLeft())
        overdue.start(std::chrono::seconds(*left) + pace);
    emit Changed();
}

} // namespace lanterra
