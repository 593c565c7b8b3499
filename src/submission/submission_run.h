#pragma once

#include "ports/dialogs.h"
#include "ports/forms.h"
#include "project/project_files.h"
#include "submission/run_checks.h"
#include "submission/run_ending.h"
#include "submission/run_extensions.h"
#include "submission/run_preparation.h"

namespace lanterra {

/// One pass over the selected sites for one URL: the checks, the collection, the dispatch over the channels,
/// the end. There is one run at a time, and the press that began it stays on the stack until its end.
/// Meanwhile events of all kinds come in at its yields, so the flags are the only way in which handlers talk
/// to it.
class SubmissionRun {
public:
    struct Parts {
        Project &project;
        MainFrame &frame;
        StatusForm &status;
        ProjectFiles &files;
        SettingsForm &frmSettings;
        ProxySettings &proxy;
        ChannelBank &channels;
        SubmitForm &form;
        RequestCollector &collector;
        HitCounter &counter;
        RunResult &result;
        SubmissionReport &report;
        Statistics &statistics;
        DocumentViewer &viewer;
        Dialogs &dialogs;
        Forms &forms;
        EventQueue &queue;
        const Clock &clock;
    };

    /// All parts must outlive this.
    explicit SubmissionRun(const Parts &theParts);
    ~SubmissionRun() = default;
    Q_DISABLE_COPY_MOVE(SubmissionRun)

    /// What the popup's other modes and the upgrade check are, to outlive this; none, and their entries do
    /// nothing.
    void SetModes(SubmissionModes *submissionModes) { modes = submissionModes; }
    void SetUpgradeCheck(UpgradeCheck *upgradeCheck) { upgrade = upgradeCheck; }

    /// "SUBMIT": starts a run and returns at its end. During a run it starts nothing; it releases Pause and
    /// makes a job over several URLs skip one. Yields.
    void cmdStart_Click();

    /// Entries of the popup that cmdStart shows. The last two do their work at once and leave modeUnchosen as
    /// it is, so that no run follows. They yield.
    void mnuAuto_Click();
    void mnuMultiple_Click();
    void mnuTop9_Click();
    void mnuSemi_Click();

    /// The checks and corrections at the start of a mode that has no run of its own: the required fields, the
    /// time limit, empty displays of the channels. "zaustavi" if a field is empty, which a box has told, else
    /// "". A run that goes on beside the mode stays active either way. Yields while the box is up.
    QString Pripremi_Submission();

    /// "multiple": shows the form of several URLs. Yields.
    void SSCommand7_Click() { parts.forms.ShowModal(ModalForm::Multi); }

    /// "Pause": holds the dispatch until the next press of cmdStart. While idle that press then makes its
    /// whole run inside this call. Channels in flight go on, and the watchdog stands still. Yields.
    void Command1_Click();

    /// "Cancel": aborts all channels; sites without a verdict stay without one. A press of cmdStart takes it
    /// back, also the one that releases Pause: the channels that had ended then take the sites that are left.
    /// Yields for its popup during a job.
    void cmdCancel_Click();
    /// Entries of the popup that cmdCancel shows during a job over several URLs.
    void mnuCancelCurrent_Click() { ++urlCounter; }
    void mnuCancelEntire_Click() { entireCancel = true; }

    /// A channel's button, which shows its popup during a run and yields meanwhile, and its popup's entries.
    /// `number` is 1 to 5; any other throws std::out_of_range.
    void kan_Click(int number);
    void mnuAbort_Click(int number) { parts.channels.Channel(number).mnuAbort_Click(); }
    void mnuDisabled_Click(int number) { parts.channels.Channel(number).mnuDisabled_Click(); }

    bool RunActive() const { return runActive; }
    /// What a mode without a run of its own does at its end.
    void ClearRunActive() { SetRunActive(false); }

    // The state that a job over several URLs shares with the run.
    int urlCounter = 0;    ///< number of the current URL, raised at each close of a run
    bool multiIdle = true; ///< no job drives the run
    bool multiActive =
        false; ///< a job has set reportFolder and reportFile, which stay; lowered at the end of a run
    bool multiChosen = false;  ///< the popup's entry for several URLs was taken
    bool entireCancel = false; ///< the job ends behind the current URL
    bool modeUnchosen = false; ///< no entry of the popup was taken yet

private:
    void DeriveReportPaths();
    bool ModeIsAutomated();
    bool EnsureProjectFile();
    void BeginRun();

    void Prepare();
    void LockEntries(bool locked);

    void Dispatch();
    void ShowCounts();
    void EndRun();
    void DrainChannels();
    QString ReasonWithoutVerdict() const;
    void CloseRun();
    void SetRunActive(bool active);

    Parts parts;
    RunChecks checks;
    RunPreparation preparation;
    RunEnding ending;
    SubmissionModes *modes = nullptr;
    UpgradeCheck *upgrade = nullptr;

    bool runActive = false;
    bool cancelRequested = false;
    bool pauseReleased = true;
    bool saveRefused =
        false;           ///< would stop the run; nothing raises it, so a cancelled Save As lets the run go on
    int phase = 0;       ///< 1 while sites are dispatched, 2 when all are done, 0 when closed; only written
    float startTime = 0; ///< Clock::Timer at the start of dispatch
};

} // namespace lanterra
