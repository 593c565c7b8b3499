#pragma once

#include "platform/interrupt.h"
#include "submission/submission_run.h"

#include <QTimer>
#include <chrono>

namespace lanterra {

/// Holds the button Cancel down from Ctrl-C to the end of the run. One press isn't enough: a site that is
/// handed out behind it would be waited for. As long as this lives, the next run of a job is cancelled too.
class CancelOnInterrupt {
public:
    /// The run must outlive this.
    explicit CancelOnInterrupt(SubmissionRun &submissionRun) : run(submissionRun) {
        again.setInterval(pace);
        QObject::connect(&again, &QTimer::timeout, &again, [this] { Press(); });
        QObject::connect(&interrupt, &Interrupt::Pressed, &again, [this] {
            Press();
            again.start();
        });
        interrupt.Watch();
    }

    bool WasPressed() const { return interrupt.WasPressed(); }

private:
    static constexpr std::chrono::milliseconds pace{50};

    void Press() {
        if (run.RunActive())
            run.cmdCancel_Click();
    }

    SubmissionRun &run;
    Interrupt interrupt;
    QTimer again;
};

} // namespace lanterra
