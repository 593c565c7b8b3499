#pragma once

#include "modes/engine_report.h"
#include "modes/url_fields_check.h"
#include "modes/url_slots.h"
#include "settings/document_viewer.h"
#include "settings/settings_form.h"

namespace lanterra {

/// The top engines mode: sends one page, or all pages of a project with several URLs, to the engines of the
/// engine file, through the spider of frmTop9. It has no sites, no verdicts by status and no statistics. Its
/// calls stay on the stack until its end, and it waits inside the event queue for the form's answer and for
/// the spider.
class TopEngines : public QObject {
    Q_OBJECT

public:
    struct Parts {
        Project &project;
        MainFrame &frame;
        UrlSlots &urlSlots;
        SubmissionRun &run;
        RunResult &result; ///< gets the report folder and file of each URL, unless a run uses them
        ProjectFiles &files;
        TopEnginesForm &form;
        EngineReport &report;
        SettingsForm &frmSettings;
        DocumentViewer &viewer;
        Dialogs &dialogs;
        EventQueue &queue;
        const Clock &clock;
    };

    /// All parts must outlive this.
    explicit TopEngines(const Parts &theParts);

    /// What looks for a newer version beside a job; it must outlive this. None, and nothing is looked for.
    void SetUpgradeCheck(UpgradeCheck *upgradeCheck) { upgrade = upgradeCheck; }

    /// The whole mode: the checks, the form and its answer, the submission of each URL with a report of its
    /// own, and the page that is opened at the end. While URLs are submitted no other project can be opened.
    /// A call inside its own yields only brings the form back. Yields.
    void SubmitTopEngines();

    QString EngineIndexFile; ///< path of the page that links the reports of a job over several URLs

    /// Whether the job that was last begun is one over all URLs of the project.
    bool AllUrls() const { return allUrls; }

    /// The pages that the last job could not write, a sentence each. The frame's notice tells them, too.
    const QStringList &NotStored() const { return notStored; }

signals:
    /// The report of a URL has been written; the tasks of its spider can still be read.
    void UrlEnded(int slot);

private:
    bool Prepare();
    bool AskForAllUrls();
    bool UrlIsGiven();
    bool AwaitAnswer();
    bool AwaitSelection();
    bool Ends() const;
    void SubmitUrls();
    void SubmitUrl(int slot);
    void PrepareReportFolder(int slot);
    void RunTopEnginesForUrl();
    void ExpandRequests();
    void FillSpiderTasks();
    void CutFragment();
    int TimeOutSeconds() const;
    void ShowReports(int jobStart);
    void WriteIndex(int jobStart);

    Parts parts;
    UrlFieldsCheck check;
    UpgradeCheck *upgrade = nullptr;
    bool active = false;  ///< the mode is on the stack
    bool allUrls = false; ///< the answer about several URLs was Yes
    QString reportFolder; ///< of the current URL, as its reportFile
    QString reportFile;
    QStringList notStored;
};

} // namespace lanterra
