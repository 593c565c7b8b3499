#pragma once

#include "ports/clock.h"
#include "ports/event_queue.h"
#include "project/main_frame.h"
#include "project/project.h"
#include "reports/run_result.h"
#include "reports/statistics.h"
#include "reports/submission_report.h"
#include "settings/document_viewer.h"
#include "settings/settings_form.h"

namespace lanterra {

/// Turns a run whose channels have all ended into what it leaves behind: the completed result, the report,
/// the statistics, and a notice of what could not be stored.
class RunEnding {
public:
    struct Parts {
        Project &project;
        MainFrame &frame;
        const SettingsForm &frmSettings;
        RunResult &result;
        SubmissionReport &report;
        Statistics &statistics;
        DocumentViewer &viewer;
        EventQueue &queue;
        const Clock &clock;
    };

    /// All parts must outlive this.
    explicit RunEnding(const Parts &theParts) : parts(theParts) {}

    /// The notice of the next run tells of that run alone, and not of those before it as in a job.
    void ForgetNotStored() { notStored.clear(); }

    /// Completes and stores the result of a run that was dispatched from `startTime` on, and shows the report
    /// if the user wants that. A site without a verdict keeps the reason that it has, or gets this one. What
    /// can't be stored stands in the result and in the notice. Yields.
    void Record(float startTime, const QString &reasonWithoutVerdict);

private:
    void CompleteNotSelected();
    void ExplainMissingVerdicts(const QString &reason);
    void Store();
    void TellNotStored();

    Parts parts;
    QStringList notStored; ///< by this run, or by all of the job's runs so far
};

} // namespace lanterra
