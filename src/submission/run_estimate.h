#pragma once

#include "ports/clock.h"
#include "reports/run_result.h"

#include <QTimer>
#include <chrono>
#include <optional>

namespace lanterra {

/// How far the run is and how long it will take, for a face to show. After a run it tells how far that came.
class RunEstimate : public QObject {
    Q_OBJECT

public:
    /// Both must outlive this.
    RunEstimate(const RunResult &runResult, const Clock &systemClock);

    int Covered() const; ///< sites with a verdict that counts
    int Total() const;   ///< sites that take part

    /// Covered of Total, from 0 to 1; 0 if no site takes part.
    double Fraction() const;

    /// Seconds until the last verdict at the pace of the run so far, rounded up. Nothing before the first
    /// verdict, between runs, and once that time has passed without another verdict: what is left then are
    /// sites that hang, which follow no pace.
    std::optional<int> SecondsLeft() const;

signals:
    /// The values are others, told at most four times a second; at the beginning and the end of a run at
    /// once.
    void Changed();

private:
    void Follow();
    void Announce();

    const RunResult &result;
    const Clock &clock;
    QTimer later;   ///< tells what changed too soon behind the last time
    QTimer overdue; ///< tells that the estimate has not come true
    std::chrono::milliseconds lastChange{0};
};

} // namespace lanterra
