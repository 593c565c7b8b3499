#include "submission/run_preparation.h"

#include "project/project_store.h"
#include "reports/site_pages.h"
#include "submission/entry_corrections.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int pagesOfTurn = 32; ///< written in one turn of the queue, some milliseconds on a slow disk

} // namespace

void RunPreparation::Prepare() {
    parts.result.Begin(parts.project.lists.List1.ListCount());
    PrepareReportPages();
    parts.form.Label28.SetCaption(QString::number(parts.project.lists.List1.SelCount()));
    CorrectEntries(parts.project.record);
    parts.channels.Prepare();
    parts.proxy.ApplyProxySettings();
    parts.counter.Fire();
    parts.form.Label2.SetCaption(parts.project.record.txtURL.Text());
}

// Every selected site has a page from the start, so that one which never answers shows why.
void RunPreparation::PrepareReportPages() {
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

bool RunPreparation::CollectRequests() {
    DataControl &table = parts.project.database.Data2;
    if (!SaveSiteSelection(parts.project, parts.status, parts.queue))
        parts.result.notStored << u"The project could not be saved: "_s + table.Failure();
    const bool complete = parts.collector.CollectSubmissionData();
    EnsureRecordSource(table, u"Data"_s);
    return complete;
}

} // namespace lanterra
