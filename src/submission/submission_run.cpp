#include "submission/submission_run.h"

#include "reports/site_pages.h"
#include "submission/entry_corrections.h"
#include "submission/required_fields.h"
#include "support/numbers.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int firstDescriptionField = 10; ///< by position in the check of required fields

} // namespace

SubmissionRun::SubmissionRun(const Parts &theParts) : parts(theParts) {}

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
    if (multiIdle && !ModeIsAutomated())
        return;
    if (!EnsureProjectFile())
        return;
    BeginRun();
    if (!PassesChecks()) {
        // A job must go on to its next URL, and waits for the close of this one.
        if (multiActive)
            CloseRun();
        return;
    }
    Prepare();
    Dispatch();
}

void SubmissionRun::DeriveReportPaths() {
    ProjectPath &path = parts.project.path;
    path.SplitProjectPath();
    const QString folder = path.ProjectFolder + path.ProjectName + QDir::separator();
    parts.result.reportFolder = folder + u"report"_s + QDir::separator();
    parts.result.reportFile = folder + u"report.htm"_s;
}

bool SubmissionRun::ModeIsAutomated() {
    parts.forms.PopUp(PopupMenu::Submit);
    if (modeUnchosen) {
        SetRunActive(false);
        return false;
    }
    if (!multiChosen)
        return true;
    if (modes)
        modes->SubmitMultipleUrls();
    return false;
}

void SubmissionRun::mnuAuto_Click() {
    modeUnchosen = false;
}

void SubmissionRun::mnuMultiple_Click() {
    multiChosen = true;
    modeUnchosen = false;
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

bool SubmissionRun::PassesChecks() {
    TakeFaxFromPhone(parts.project.record);
    if (!FieldsAreFilled())
        return false;
    selectedNames.clear();
    const ListBox &sites = parts.project.lists.List1;
    for (int i = 0; i < sites.ListCount(); ++i) {
        if (sites.Selected(i))
            selectedNames += sites.Item(i) + u"\r\n"_s;
    }
    return CategoriesAreChosen();
}

// The pane follows the position in the table: phone and fax, 10 and 11, stand among the other data, yet lead to the
// description; and an empty address is found with the first field, so it leads to the other data.
bool SubmissionRun::FieldsAreFilled() {
    const auto fields = BindRequiredFields(parts.project.record);
    const bool urlMissing = IsBlank(parts.project.record.txtURL.Text());
    for (int i = 1; i <= requiredFieldCount; ++i) {
        if (!urlMissing && !IsBlank(fields.at(static_cast<std::size_t>(i - 1))->Text()))
            continue;
        RefuseRun(u"You must fill all text fields"_s,
                  i >= firstDescriptionField ? Pane::FrameDescription : Pane::FrameOtherData);
        return false;
    }
    return true;
}

bool SubmissionRun::CategoriesAreChosen() {
    if (parts.collector.data_proveri_selektovane_kategorije(selectedNames).isEmpty())
        return true;
    const QString name = parts.collector.data_proveri_selektovane_kategorije(selectedNames);
    RefuseRun(u"You must select a valid category for "_s + name, Pane::fraCat);
    return false;
}

void SubmissionRun::RefuseRun(const QString &message, Pane pane) {
    parts.dialogs.Show({message, u"Error!"_s, BoxIcon::Exclamation});
    parts.frame.SetPointer(MousePointer::Default);
    parts.frame.ShowPane(pane);
    SetRunActive(false);
}

void SubmissionRun::Prepare() {
    SubmitForm &form = parts.form;
    parts.result.Begin(parts.project.lists.List1.ListCount());
    PrepareReportPages();
    form.Label28.SetCaption(QString::number(parts.project.lists.List1.SelCount()));
    CorrectEntries(parts.project.record);
    parts.channels.ClearDisplays();
    phase = 1;
    parts.channels.FreeAll();
    parts.proxy.ApplyProxySettings();
    LockEntries(true);
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
    ProjectPath &path = parts.project.path;
    path.SplitProjectPath();
    QDir().mkpath(path.ProjectFolder + path.ProjectName);
    QDir().mkpath(parts.result.reportFolder);
    const QString page = BusySitePage();
    const SiteLists &lists = parts.project.lists;
    for (int i = 0; i < lists.List1.ListCount(); ++i) {
        if (lists.List1.Selected(i))
            WriteSitePage(parts.result.reportFolder, lists.SiteName(i), page);
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
    if (!SaveSiteSelection(parts.project, parts.files.Status(), parts.queue))
        parts.result.notStored << u"The project could not be saved: "_s + parts.project.database.Data2.Failure();
    if (!parts.collector.CollectSubmissionData())
        cancelRequested = true;
    EnsureRecordSource(parts.project.database.Data2, u"Data"_s);
}

void SubmissionRun::Dispatch() {
    startTime = parts.clock.Timer();
    while (nextSite != parts.project.lists.List1.ListCount() && !parts.queue.Closing()) {
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
    CloseRun();
}

void SubmissionRun::DispatchOne() {
    if (parts.project.lists.List1.Selected(nextSite))
        parts.channels.Connect(parts.collector.requests.at(static_cast<std::size_t>(nextSite)), nextSite);
    ++nextSite;
}

// A program that ends doesn't wait for the sites; the run still ends with its report.
void SubmissionRun::DrainChannels() {
    while (!parts.channels.AllFree() && !parts.queue.Closing())
        parts.channels.WaitForChannels();
    if (parts.queue.Closing())
        parts.channels.CancelAll();
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
        parts.result.notStored << u"The statistics could not be stored: "_s + parts.project.database.Data3.Failure();
    if (parts.project.record.Check3.Checked() && !parts.queue.Closing())
        parts.viewer.OpenDocument(parts.result.reportFile);
    if (upgrade)
        upgrade->ReleaseUpgrade();
    multiActive = false;
    SetRunActive(false);
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
    for (int i = 0; i < static_cast<int>(parts.result.outcomes.size()); ++i) {
        SiteOutcome &outcome = parts.result.outcomes[static_cast<std::size_t>(i)];
        if (!parts.project.lists.List1.Selected(i) || outcome.verdict != Verdict::NotSelected)
            continue;
        outcome.verdict = Verdict::None;
        if (outcome.reason.isEmpty())
            outcome.reason = u"the run was cancelled"_s;
    }
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
    parts.channels.CancelAll();
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
