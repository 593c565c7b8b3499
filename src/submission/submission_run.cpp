#include "submission/submission_run.h"

#include "reports/site_pages.h"
#include "submission/entry_corrections.h"
#include "submission/required_fields.h"
#include "support/numbers.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// Why a site has no verdict.
const QString programClosed = u"the program was closed"_s;
const QString runCancelled = u"the run was cancelled"_s;

constexpr int pagesOfTurn = 32; ///< written in one turn of the queue, some milliseconds on a slow disk

} // namespace

SubmissionRun::SubmissionRun(const Parts &theParts)
    : parts(theParts), checks(parts.project, parts.frame, parts.collector, parts.dialogs) {}

void SubmissionRun::cmdStart_Click() {
    cancelRequested = false;
    pauseReleased = true;
    modeUnchosen = true;
    if (!multiActive)
        DeriveReportPaths();
    if (runActive) {
        CloseRun();
        return;
    }
    if (multiIdle)
        notStored.clear();
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
    SubmitForm &form = parts.form;
    parts.result.Begin(parts.project.lists.List1.ListCount());
    LockEntries(true); // before the first yield, so that the marks stay
    PrepareReportPages();
    form.Label28.SetCaption(QString::number(parts.project.lists.List1.SelCount()));
    CorrectEntries(parts.project.record);
    phase = 1;
    parts.channels.Prepare();
    parts.proxy.ApplyProxySettings();
    nextSite = 0;
    parts.counter.Fire();
    form.Label2.SetCaption(parts.project.record.txtURL.Text());
    if (upgrade && parts.frmSettings.check_for_program_upgrade.Checked())
        upgrade->HoldUpgrade();
    CollectRequests();
    parts.frame.SetPointer(MousePointer::Default);
}

// Every selected site has a page from the start, so that one which never answers shows why.
void SubmissionRun::PrepareReportPages() {
    parts.project.path.SplitProjectPath();
    CreateReportFolders(parts.project.path, parts.result.reportFolder);
    const QString page = BusySitePage();
    const SiteLists &lists = parts.project.lists;
    for (int i = 0; i < lists.List1.ListCount(); ++i) {
        if (!lists.List1.Selected(i))
            continue;
        WriteSitePage(parts.result.reportFolder, lists.SiteName(i), page);
        parts.result.Await(i);
        if (i % pagesOfTurn == pagesOfTurn - 1)
            parts.queue.Yield();
    }
}

void SubmissionRun::LockEntries(bool locked) {
    parts.project.record.txtURL.SetEnabled(!locked);
    for (TextBox *field : BindRequiredFields(parts.project.record))
        field->SetEnabled(!locked);
    parts.statistics.Command10.SetEnabled(!locked);
    parts.project.lists.List1.SetEnabled(!locked);
    parts.project.lists.List3.SetEnabled(!locked);
}

void SubmissionRun::CollectRequests() {
    if (!SaveSiteSelection(parts.project, parts.status, parts.queue))
        parts.result.notStored << u"The project could not be saved: "_s +
                                      parts.project.database.Data2.Failure();
    if (!parts.collector.CollectSubmissionData())
        cancelRequested = true;
    EnsureRecordSource(parts.project.database.Data2, u"Data"_s);
}

void SubmissionRun::Dispatch() {
    startTime = parts.clock.Timer();
    while (nextSite < parts.project.lists.List1.ListCount() && !parts.queue.Closing()) {
        while (!parts.channels.AnyFree() && !parts.queue.Closing())
            parts.channels.WaitForChannels();
        DispatchOne();
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

void SubmissionRun::DispatchOne() {
    const auto row = static_cast<std::size_t>(nextSite);
    if (parts.project.lists.List1.Selected(nextSite) && row < parts.collector.requests.size())
        parts.channels.Connect(parts.collector.requests[row], nextSite);
    ++nextSite;
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
    CompleteNotSelected();
    ExplainMissingVerdicts();
    parts.result.elapsedSeconds = RoundHalfEven(parts.clock.Timer() - startTime);
    if (!parts.report.WriteSubmissionReport())
        parts.result.notStored << u"The report could not be written: "_s + parts.result.reportFile;
    if (parts.frmSettings.CreateStatistic.Checked() && !parts.statistics.AppendSessionRow(parts.result))
        parts.result.notStored << u"The statistics could not be stored: "_s +
                                      parts.project.database.Data3.Failure();
    TellNotStored();
    if (parts.project.record.Check3.Checked() && !parts.queue.Closing())
        parts.viewer.OpenDocument(parts.result.reportFile);
    if (upgrade)
        upgrade->ReleaseUpgrade();
    multiActive = false;
    SetRunActive(false);
    parts.result.End();
    parts.counter.RemoveScratchFile();
    multiIdle = true;
}

void SubmissionRun::CompleteNotSelected() {
    const SiteLists &lists = parts.project.lists;
    parts.result.BeginNotSelected();
    for (int i = 0; i < lists.List1.ListCount(); ++i) {
        if (!lists.List1.Selected(i))
            parts.result.AddNotSelected(lists.SiteName(i));
        parts.queue.Yield();
    }
}

void SubmissionRun::ExplainMissingVerdicts() {
    const QString reason = parts.queue.Closing() ? programClosed
                           : cancelRequested     ? runCancelled
                                                 : u"not sent, because no channel had ended"_s;
    for (int i = 0; i < static_cast<int>(parts.result.outcomes.size()); ++i) {
        if (parts.result.outcomes[static_cast<std::size_t>(i)].verdict == Verdict::None)
            parts.result.Explain(i, reason);
    }
}

// In the notice, since a box would hold up a job. The save of a later run in it empties the notice, so what
// all of its runs had to tell is told again.
void SubmissionRun::TellNotStored() {
    notStored += parts.result.notStored;
    notStored.removeDuplicates();
    if (!notStored.isEmpty())
        parts.frame.Notice.SetCaption(notStored.join("; "_L1));
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
