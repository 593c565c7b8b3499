#include "modes/multi_url_job.h"

#include "modes/multi_index.h"
#include "reports/site_pages.h"
#include "support/numbers.h"
#include "support/text_file.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace lanterra {

MultiUrlJob::MultiUrlJob(const Parts &theParts)
    : parts(theParts), check(parts.project.record, parts.frame, parts.dialogs, parts.queue) {}

void MultiUrlJob::SubmitMultipleUrls() {
    if (active)
        return;
    const QScopedValueRollback<bool> working(active, true);
    if (!parts.project.record.MultiUrlMode()) {
        parts.dialogs.Show({u" Please enter multiple URLs ! "_s, u"Error!"_s, BoxIcon::Critical});
        parts.forms.ShowModal(ModalForm::Multi);
        return; // the user presses SUBMIT again
    }
    if (!check.Pass())
        return;
    SubmitAll();
    WriteMultiIndex();
    parts.urlSlots.Show(0);
    parts.run.multiIdle = true;
    if (upgrade)
        upgrade->ReleaseUpgrade();
}

void MultiUrlJob::SubmitAll() {
    SubmissionRun &run = parts.run;
    const ProjectRecord &record = parts.project.record;
    run.urlCounter = 0;
    run.entireCancel = false;
    urlReportFiles.clear();
    // Presses by hand raise the counter too, so it can pass the last slot by more than one.
    while (run.urlCounter <= record.MultiUrlUpper && !run.entireCancel && !parts.queue.Closing()) {
        if (IsBlank(record.multiUrlTable.Cell(run.urlCounter, MultiUrlTable::urlColumn)))
            ++run.urlCounter;
        else
            SubmitUrl(run.urlCounter);
    }
}

void MultiUrlJob::SubmitUrl(int slot) {
    SubmissionRun &run = parts.run;
    parts.urlSlots.Show(slot);
    run.multiIdle = false;
    run.modeUnchosen = false;
    run.multiActive = true;
    SetReportPaths(slot);
    emit UrlStarted(slot);
    run.cmdStart_Click();
    run.multiActive = false;
    emit UrlEnded(slot);
}

void MultiUrlJob::SetReportPaths(int slot) {
    ProjectPath &path = parts.project.path;
    path.SplitProjectPath();
    parts.result.reportFolder = path.ReportFolder(slot);
    parts.result.reportFile = parts.result.reportFolder + u"report.htm"_s;
    CreateReportFolders(path, parts.result.reportFolder);
    if (urlReportFiles.size() < MultiUrlTable::slotCount)
        urlReportFiles << parts.result.reportFile;
}

void MultiUrlJob::WriteMultiIndex() {
    const Project &project = parts.project;
    QString &file = parts.result.reportFile;
    file = project.path.OwnFolder() + u"report.htm"_s;
    indexWritten =
        WriteFileText(file, MultiIndexPage(project.record.multiUrlTable, project.record.MultiUrlUpper,
                                           urlReportFiles, parts.clock.Now()));
    if (!indexWritten)
        parts.frame.Notice.SetCaption(u"The page of all reports could not be written: "_s + file);
    if (indexWritten && !parts.queue.Closing())
        parts.viewer.OpenDocument(file);
}

} // namespace lanterra
