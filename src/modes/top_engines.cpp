#include "modes/top_engines.h"

#include "reports/site_pages.h"
#include "support/folder_files.h"
#include "support/numbers.h"
#include "support/url_encode.h"

#include <QScopeGuard>
#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr qsizetype shortestUrl = 4;
constexpr int usualTimeOut = 180;        ///< seconds, where the box holds no number
constexpr double longestTimeOut = 32767; ///< seconds

const QString reportName = u"report.html"_s;

int WholeSeconds(const Clock &clock) { return static_cast<int>(std::floor(clock.Timer())); }

// What the engines' names tell of their scripts: these three take a form, all others an address.
bool TakesPost(const QString &engine) {
    return engine.contains("Excite"_L1, Qt::CaseInsensitive) ||
           engine.contains("Northern"_L1, Qt::CaseInsensitive) ||
           engine.contains("Netfind"_L1, Qt::CaseInsensitive);
}

} // namespace

TopEngines::TopEngines(const Parts &theParts)
    : parts(theParts), check(parts.project.record, parts.frame, parts.dialogs, parts.queue) {}

void TopEngines::SubmitTopEngines() {
    if (active) {
        parts.form.SetVisible(true);
        return;
    }
    const QScopedValueRollback<bool> working(active, true);
    if (!Prepare() || !AwaitAnswer() || !AwaitSelection())
        return;
    const int jobStart = WholeSeconds(parts.clock);
    SubmitUrls();
    ShowReports(jobStart);
    if (upgrade && parts.frmSettings.check_for_program_upgrade.Checked())
        upgrade->ReleaseUpgrade();
    parts.form.SetVisible(false);
}

bool TopEngines::Prepare() {
    ProjectRecord &record = parts.project.record;
    parts.form.Load();
    parts.form.cmdSubmit.SetEnabled(true);
    parts.form.cmdStop.SetEnabled(true);
    if (!parts.run.Pripremi_Submission().isEmpty())
        return false;
    record.txtName.SetText(record.txtName1.Text() + u' ' + record.txtName2.Text());
    return record.MultiUrlMode() ? AskForAllUrls() : UrlIsGiven();
}

bool TopEngines::AskForAllUrls() {
    allUrls = parts.dialogs.Show({u"Do you want to submit all your URLs ?"_s, u"Zephyrine Lanterra"_s,
                                  BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No}) == BoxAnswer::Yes;
    return !allUrls || check.Pass();
}

bool TopEngines::UrlIsGiven() {
    allUrls = false;
    if (parts.project.record.txtURL.Text().size() >= shortestUrl)
        return true;
    parts.dialogs.Show({u" Please fill all text fields! "_s, u"Error!"_s, BoxIcon::Critical});
    parts.frame.ShowPane(Pane::FrameDescription);
    return false;
}

// A form that was cancelled has hidden itself; one without engines stays up.
bool TopEngines::AwaitAnswer() {
    parts.run.entireCancel = false;
    parts.form.TopEnginesGo = false;
    parts.form.SetVisible(true);
    while (!parts.form.TopEnginesGo && !parts.queue.Closing())
        parts.queue.Wait(EventQueue::withoutEnd);
    return parts.form.List1.ListCount() > 0 && !Ends();
}

// The box comes back each time that it is closed, until a row is selected on the form beside it.
bool TopEngines::AwaitSelection() {
    while (parts.form.List1.SelCount() == 0 && !parts.queue.Closing())
        parts.dialogs.Show({u"Please select search engines!"_s, u"Error!"_s, BoxIcon::Critical});
    return !parts.queue.Closing();
}

void TopEngines::SubmitUrls() {
    ProjectRecord &record = parts.project.record;
    parts.files.SetTopEnginesActive(true);
    const auto unlock = qScopeGuard([this] { parts.files.SetTopEnginesActive(false); });
    parts.run.entireCancel = false;
    notStored.clear();
    parts.project.path.SplitProjectPath();
    EngineIndexFile = parts.project.path.ReportFolder() + u"top_engines_report.html"_s;
    reportFile = parts.result.reportFile; // opened if there is no URL
    if (!record.MultiUrlMode())
        record.multiUrlTable.SetCell(0, MultiUrlTable::urlColumn, record.txtURL.Text());
    // Counts for itself: urlCounter belongs to the runs, and one of them, or a job, can go on beside this.
    for (int slot = 0; slot <= record.MultiUrlUpper && !Ends(); ++slot) {
        if (IsBlank(record.multiUrlTable.Cell(slot, MultiUrlTable::urlColumn)))
            continue;
        SubmitUrl(slot);
        if (!allUrls)
            return; // the first URL alone, whichever was on show
    }
}

bool TopEngines::Ends() const { return parts.run.entireCancel || parts.queue.Closing(); }

void TopEngines::SubmitUrl(int slot) {
    ProjectRecord &record = parts.project.record;
    const QString url = record.multiUrlTable.Cell(slot, MultiUrlTable::urlColumn);
    parts.urlSlots.Show(slot);
    record.txtURL.SetText(url);
    PrepareReportFolder(slot);
    const int urlStart = WholeSeconds(parts.clock);
    RunTopEnginesForUrl();
    if (!parts.report.WriteEngineReport(reportFile, urlStart))
        notStored << u"The report could not be written: "_s + reportFile;
    emit UrlEnded(slot);
}

void TopEngines::PrepareReportFolder(int slot) {
    parts.project.path.SplitProjectPath();
    reportFolder = parts.project.path.ReportFolder(slot);
    reportFile = reportFolder + reportName;
    DeleteFilesIn(reportFolder);
    CreateReportFolders(parts.project.path, reportFolder);
    if (parts.run.RunActive())
        return; // its pages and its report go where the shared paths lead
    parts.result.reportFolder = reportFolder;
    parts.result.reportFile = reportFile;
}

void TopEngines::RunTopEnginesForUrl() {
    Spider &spider = parts.form.Spider1;
    parts.frame.SetPointer(MousePointer::WaitingArrow);
    parts.form.SetVisible(true); // cmdStop may have hidden it
    ExpandRequests();
    FillSpiderTasks();
    spider.SetTimeOut(TimeOutSeconds());
    if (upgrade && parts.frmSettings.check_for_program_upgrade.Checked())
        upgrade->HoldUpgrade();
    parts.frame.SetPointer(MousePointer::Default);
    spider.Start(reportFolder);
    while (spider.Running() && !parts.queue.Closing())
        spider.WaitForTasks();
    spider.Stop();
}

// The requests are made before the fragment of the address is cut off, so they still hold it.
void TopEngines::ExpandRequests() {
    const ProjectRecord &record = parts.project.record;
    for (EngineRow &engine : parts.form.engines.rows) {
        if (!parts.form.IsEngineSelected(engine.name))
            continue;
        engine.request = engine.submitTemplate;
        engine.request.replace("[name]"_L1, UrlEncode(record.txtName.Text()), Qt::CaseInsensitive)
            .replace("[email]"_L1, UrlEncode(record.txtEmail.Text()), Qt::CaseInsensitive)
            .replace("[url]"_L1, UrlEncode(record.txtURL.Text()), Qt::CaseInsensitive);
    }
}

void TopEngines::FillSpiderTasks() {
    Spider &spider = parts.form.Spider1;
    spider.ClearTasks();
    for (std::size_t row = 0; row < parts.form.engines.rows.size(); ++row) {
        const EngineRow engine = parts.form.engines.rows[row];
        if (!parts.form.IsEngineSelected(engine.name))
            continue;
        CutFragment();
        const QString url = parts.project.record.txtURL.Text();
        spider.NewTask();
        spider.SetTaskItem(u"URL"_s, engine.request);
        spider.SetTaskItem(u"Depth"_s, u"0"_s);
        spider.SetTaskItem(u"Method"_s, TakesPost(engine.name) ? u"POST"_s : u"GET"_s);
        spider.SetTaskItem(u"EngineNo"_s, QString::number(row));
        spider.SetTaskItem(u"QueryURL"_s, url);
        spider.SetTaskItem(u"Task"_s, url + u" - "_s + engine.name);
        spider.SetTaskItem(u"Referrer"_s, engine.referrer);
        spider.SetTaskItem(u"Keywords"_s, QString());
        spider.SetTaskItem(u"UserName"_s, QString());
        spider.SetTaskItem(u"UserEmail"_s, QString());
        spider.AddTask();
        parts.queue.Yield();
    }
}

void TopEngines::CutFragment() {
    TextBox &txtURL = parts.project.record.txtURL;
    txtURL.SetText(txtURL.Text().section(u'#', 0, 0));
}

int TopEngines::TimeOutSeconds() const {
    const QString &text = parts.form.TimeOut.Text();
    if (!IsNumeric(text))
        return usualTimeOut;
    return RoundHalfEven(
        static_cast<float>(std::clamp(LeadingNumber(text), -longestTimeOut, longestTimeOut)));
}

void TopEngines::ShowReports(int jobStart) {
    const bool showsIndex = parts.project.record.MultiUrlMode() && allUrls;
    if (showsIndex)
        WriteIndex(jobStart);
    if (!notStored.isEmpty())
        parts.frame.Notice.SetCaption(notStored.join("; "_L1));
    if (!parts.queue.Closing())
        parts.viewer.OpenDocument(showsIndex ? EngineIndexFile : reportFile);
    if (parts.project.record.MultiUrlMode())
        parts.urlSlots.Show(0); // the scroll bar too, or the address would go into the slot on show
}

void TopEngines::WriteIndex(int jobStart) {
    QStringList reportFiles;
    for (int slot = 0; slot <= parts.project.record.MultiUrlUpper; ++slot)
        reportFiles << parts.project.path.ReportFolder(slot) + reportName;
    if (!parts.report.WriteEngineIndex(EngineIndexFile, reportFiles, jobStart))
        notStored << u"The page of all reports could not be written: "_s + EngineIndexFile;
}

} // namespace lanterra
