#include "project/project_saving.h"

#include "database/maintenance.h"
#include "database/sqlite_file_check.h"
#include "database/walk_transaction.h"
#include "support/file_names.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// Into the file that Data2 is bound to.
StoreResult StoreRecordAndSelection(Project &project, StatusForm &status, EventQueue &queue) {
    if (project.lists.List1.ListCount() == 0)
        return {true, {}, {}};
    DataControl &table = project.database.Data2;
    WalkTransaction transaction(table);
    StoreResult result = SaveProjectFields(project);
    const bool marksStored = !HoldsListedSites(project) || SaveSiteSelection(project, status, queue);
    if (!transaction.Commit() || !marksStored) {
        result.stored = false;
        result.failure = table.Failure();
    }
    return result;
}

// The file is the old one or the new one at every moment.
StoreResult StoreCopy(Project &project, const QString &source, StatusForm &status, EventQueue &queue) {
    StoreResult result;
    result.failure = CopyDatabase(source, project.path.Base, [&](const QString &copy) {
        DataControl &table = project.database.Data2;
        table.SetDatabaseName(copy);
        table.SetRecordSource(u"Data"_s);
        if (!table.Refresh())
            return table.Failure();
        result = StoreRecordAndSelection(project, status, queue);
        project.database.Unbind();
        return result.failure;
    });
    result.stored = result.failure.isEmpty();
    return result;
}

} // namespace

StoreResult StoreProject(Project &project, const QString &source, StatusForm &status, EventQueue &queue) {
    project.database.Unbind();
    const bool inPlace = source.isEmpty() || IsSameFile(source, project.path.Base);
    StoreResult result = inPlace ? StoreResult{true, {}, {}} : StoreCopy(project, source, status, queue);
    const bool bound = project.database.BindProject();
    project.database.BindMaster();
    if (!result.stored || !inPlace)
        return result;
    if (!bound)
        return {false, {}, project.database.Data2.Failure()};
    if (!HoldsListedSites(project))
        return {false, {}, u"Another program has put other sites into the file."_s};
    return StoreRecordAndSelection(project, status, queue);
}

QString SourceOfCopy(Project &project) {
    const QString refusal = SqliteFileRefusal(project.path.Base);
    if (project.path.Base.isEmpty() || !(refusal.isEmpty() || refusal == UnreadableRefusal()))
        return project.path.MasterFile();
    const bool holdsOthers = project.database.BindProject() && !HoldsListedSites(project);
    return holdsOthers ? project.path.MasterFile() : project.path.Base;
}

} // namespace lanterra
