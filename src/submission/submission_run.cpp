#include "submission/submission_run.h"

#include "submission/entry_corrections.h"
#include "submission/required_fields.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// Why a site has no verdict.
const QString programClosed = u"the program was closed"_s;
const QString runCancelled = u"the run was cancelled"_s;

} // namespace

SubmissionRun::SubmissionRun(const Parts &theParts)
    : parts(theParts), checks(parts.project, parts.frame, parts.collector, parts.dialogs),
      preparation({parts.project, parts.status, parts.proxy, parts.channels, parts.form, parts.collector,
                   parts.counter, parts.result, parts.queue}),
      ending({parts.project, parts.frame, parts.frmSettings, parts.result, parts.report, parts.statistics,
              parts.viewer, parts.queue, parts.clock}) {}

void SubmissionRun::cmdStart_Click() {
    cancelRequested = false;
    pauseReleased = true;
    parts.form.Command1.SetMarked(false);
    modeUnchosen = true;
    if (!multiActive)
        DeriveReportPaths();
    if (runActive) {
        CloseRun();
        return;
    }
    if (multiIdle)
        ending.ForgetNotStored();
    if (multiIdle && !ModeIsAutomated())
        return;
    if (!EnsureProjectFile())
        return;
    BeginRun();
    if (!checks.Pass()) {
        SetRunActive(false);
        // A job must go on to its next URL, and waits for the close of this one.
        if (std::exchange(multiActive, false))
            CloseRun();
        return;
    }
    Prepare();
    Dispatch();
}

void SubmissionRun::DeriveReportPaths() {
    ProjectPath &path = parts.project.path;
    path.SplitProjectPath();
    parts.result.reportFolder = path.ReportFolder();
    parts.result.reportFile = path.OwnFolder() + u"report.htm"_s;
}

bool SubmissionRun::ModeIsAutomated() {
    parts.forms.PopUp(PopupMenu::Submit);
    if (modeUnchosen) {
        SetRunActive(false);
        return false;
    }
    if (!std::exchange(multiChosen, false))
        return true;
    if (modes)
        modes->SubmitMultipleUrls();
    return false;
}

void SubmissionRun::mnuAuto_Click() { modeUnchosen = false; }

void SubmissionRun::mnuMultiple_Click() {
    multiChosen = true;
    modeUnchosen = false;
}

void SubmissionRun::mnuTop9_Click() {
    if (modes)
        modes->SubmitTopEngines();
}

void SubmissionRun::mnuSemi_Click() {
    if (modes)
        modes->WriteSemiPage();
}

QString SubmissionRun::Pripremi_Submission() {
    parts.frame.SetPointer(MousePointer::Hourglass);
    if (!checks.FieldsPass())
        return u"zaustavi"_s;
    CorrectTimeLimit(parts.project.record);
    for (int number = 1; number <= channelCount; ++number)
        parts.channels.Channel(number).ClearDisplay();
    parts.frame.SetPointer(MousePointer::Default);
    return {};
}

bool SubmissionRun::EnsureProjectFile() {
    parts.frame.SetPointer(MousePointer::Hourglass);
    saveRefused = false;
    if (parts.project.path.Base.isEmpty()) {
        parts.frame.SetPointer(MousePointer::Arrow);
        parts.files.mnuFileSaveAs_Click();
        parts.frame.SetPointer(MousePointer::Hourglass);
        if (!multiActive)
            DeriveReportPaths();
    }
    if (!saveRefused)
        return true;
    SetRunActive(false);
    parts.frame.SetPointer(MousePointer::Arrow);
    parts.dialogs.Show({u"You must save your project first   "_s, u"Error!"_s, BoxIcon::Critical});
    return false;
}

void SubmissionRun::BeginRun() {
    SetRunActive(true);
    parts.result.ClearNames();
    parts.channels.BeginRun();
}

void SubmissionRun::Prepare() {
    phase = 1;
    LockEntries(true); // before the first yield, so that the marks stay
    preparation.Prepare();
    if (upgrade && parts.frmSettings.check_for_program_upgrade.Checked())
        upgrade->HoldUpgrade();
    if (!preparation.CollectRequests())
        cancelRequested = true;
    parts.frame.SetPointer(MousePointer::Default);
}

void SubmissionRun::LockEntries(bool locked) {
    parts.project.record.txtURL.SetEnabled(!locked);
    for (TextBox *field : BindRequiredFields(parts.project.record))
        field->SetEnabled(!locked);
    parts.statistics.Command10.SetEnabled(!locked);
    parts.project.lists.List1.SetEnabled(!locked);
    parts.project.lists.List3.SetEnabled(!locked);
}

void SubmissionRun::Dispatch() {
    const ListBox &sites = parts.project.lists.List1;
    startTime = parts.clock.Timer();
    for (int nextSite = 0; nextSite < sites.ListCount() && !parts.queue.Closing(); ++nextSite) {
        while (!parts.channels.AnyFree() && !parts.queue.Closing())
            parts.channels.WaitForChannels();
        const auto row = static_cast<std::size_t>(nextSite);
        if (sites.Selected(nextSite) && row < parts.collector.requests.size())
            parts.channels.Connect(parts.collector.requests[row], nextSite);
        EnsureRecordSource(parts.project.database.Data2, u"Data"_s);
        ShowCounts();
        if (cancelRequested) {
            EndRun();
            return;
        }
        parts.queue.Yield();
    }
    DrainChannels();
    ShowCounts();
    phase = 2;
    EndRun();
    // A job counts a cancelled URL by the popup of Cancel. Counted here too, the next one would be skipped.
    if (!cancelRequested)
        CloseRun();
}

// A program that ends doesn't wait for the sites; the run still ends with its report.
void SubmissionRun::DrainChannels() {
    while (!parts.channels.AllFree() && !parts.queue.Closing())
        parts.channels.WaitForChannels();
    if (parts.queue.Closing())
        parts.channels.CancelAll(programClosed);
}

void SubmissionRun::ShowCounts() {
    const RunResult &result = parts.result;
    parts.form.Label29.SetCaption(QString::number(result.SuccessfulCount() + result.FailedCount()));
    parts.form.Label30.SetCaption(QString::number(result.SuccessfulCount()));
    parts.form.Label31.SetCaption(QString::number(result.FailedCount()));
}

void SubmissionRun::EndRun() {
    DrainChannels();
    parts.channels.ShowIdle();
    LockEntries(false);
    ending.Record(startTime, ReasonWithoutVerdict());
    parts.result.End(); // before the question, which stands as long as nobody answers it
    if (upgrade)
        upgrade->ReleaseUpgrade();
    multiActive = false;
    SetRunActive(false);
    parts.counter.RemoveScratchFile();
    multiIdle = true;
}

QString SubmissionRun::ReasonWithoutVerdict() const {
    if (parts.queue.Closing())
        return programClosed;
    return cancelRequested ? runCancelled : u"not sent, because no channel had ended"_s;
}

void SubmissionRun::CloseRun() {
    phase = 0;
    multiIdle = true;
    ++urlCounter;
}

void SubmissionRun::SetRunActive(bool active) {
    runActive = active;
    parts.files.SetRunActive(active);
}

void SubmissionRun::Command1_Click() {
    pauseReleased = false;
    parts.form.Command1.SetMarked(true);
    while (!pauseReleased && !parts.queue.Closing())
        parts.queue.Wait(EventQueue::withoutEnd);
}

void SubmissionRun::cmdCancel_Click() {
    if (!multiIdle)
        parts.forms.PopUp(PopupMenu::Cancel2); // dismissing it doesn't stop the cancel
    parts.channels.CancelAll(runCancelled);
    cancelRequested = true;
}

void SubmissionRun::kan_Click(int number) {
    constexpr std::array menus{PopupMenu::Status, PopupMenu::Status2, PopupMenu::Status3, PopupMenu::Status4,
                               PopupMenu::Status5};
    parts.project.record.txtName.SetFocus();
    if (runActive)
        parts.forms.PopUp(menus.at(static_cast<std::size_t>(number - 1)));
}

} // namespace lanterra
