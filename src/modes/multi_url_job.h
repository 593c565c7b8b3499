#pragma once

#include "modes/url_fields_check.h"
#include "modes/url_slots.h"
#include "submission/submission_run.h"

namespace lanterra {

/// The job over all URLs of a project: one whole run for each, with a report folder of its own, and a page
/// that links the reports, in the project's own folder. It drives the press of SUBMIT as a plain call and
/// stays on the stack until its end. Its place is SubmissionRun::urlCounter, which the close of a run raises;
/// a cancelled run doesn't close, so that its popup decides whether the URL comes again.
class MultiUrlJob : public QObject {
    Q_OBJECT

public:
    struct Parts {
        Project &project;
        MainFrame &frame;
        UrlSlots &urlSlots;
        SubmissionRun &run;
        RunResult &result;
        DocumentViewer &viewer;
        Dialogs &dialogs;
        Forms &forms;
        EventQueue &queue;
        const Clock &clock;
    };

    /// All parts must outlive this.
    explicit MultiUrlJob(const Parts &theParts);

    /// What is asked for a result at the end of each job; it must outlive this. None, and nothing is told
    /// there.
    void SetUpgradeCheck(UpgradeCheck *upgradeCheck) { upgrade = upgradeCheck; }

    /// Makes the job, or tells why it can't: without the several-URL mode it leads to the form of the
    /// addresses. A second call inside its own yields does nothing. Yields.
    void SubmitMultipleUrls();

    /// False if the page of the last job could not be written.
    bool IndexWritten() const { return indexWritten; }

signals:
    /// Around each URL's run. The last one also comes when a check has stopped the run.
    void UrlStarted(int slot);
    void UrlEnded(int slot);

private:
    void SubmitAll();
    void SubmitUrl(int slot);
    void SetReportPaths(int slot);
    void WriteMultiIndex();

    Parts parts;
    UrlFieldsCheck check;
    UpgradeCheck *upgrade = nullptr;
    QStringList urlReportFiles; ///< of the job's runs in their order, ten at most
    bool indexWritten = true;
    bool active = false; ///< a job is on the stack
};

} // namespace lanterra
