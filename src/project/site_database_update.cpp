#include "project/site_database_update.h"

#include "database/maintenance.h"
#include "database/walk_transaction.h"
#include "project/site_schema.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr qint64 databaseHeader = 100; ///< bytes; among them SQLite's count of the changes of the file

QByteArray ChangeMark(const QString &database) {
    QFile file(database);
    return file.open(QIODevice::ReadOnly) ? file.read(databaseHeader) : QByteArray();
}

// A value that is missing stays missing: a category that was never written is another thing than an empty
// one.
bool AddCopyOf(const DataControl &row, DataControl &table, const QStringList &fields) {
    bool stored = table.AddNew();
    for (const QString &field : fields) {
        if (!row.IsNull(field))
            stored = table.SetText(field, row.Text(field)) && stored;
    }
    return table.Update() && stored;
}

} // namespace

bool SiteDatabaseUpdate::ImportSiteDatabase() {
    if (const QString failure = TakeOverRows(); !failure.isEmpty()) {
        parts.frame.Notice.SetCaption(u"The new search engine database could not be taken over: "_s +
                                      failure);
        return false;
    }
    parts.selection.SelectByRegistration(u"nereg"_s);
    TellDone();
    StoreSelection();
    parts.options.Set(option::sameDescription, parts.project.record.chkMultiSameDesc.Value());
    CloseAndCompact();
    parts.files.AskSaveProject();
    return true;
}

// The rows change in a copy that takes the project's place once it is whole.
QString SiteDatabaseUpdate::TakeOverRows() {
    SiteDatabase &database = parts.project.database;
    const QString base = QFileInfo(parts.project.path.Base).canonicalFilePath();
    const QByteArray before = ChangeMark(base);
    database.Data2.Close();
    QString failure = CopyDatabase(base, base, [&](const QString &copy) {
        QString reason = FillCopy(copy);
        database.Unbind();
        if (reason.isEmpty() && ChangeMark(base) != before)
            reason = u"The project was changed meanwhile."_s;
        return reason;
    });
    database.BindMaster();
    database.BindProject();
    return failure;
}

QString SiteDatabaseUpdate::FillCopy(const QString &copy) {
    const QString sites = u"Data"_s;
    const QString directories = u"Categories"_s;
    DataControl &own = parts.project.database.Data2;
    own.SetDatabaseName(copy);
    own.SetRecordSource(sites);
    if (!own.Refresh())
        return own.Failure();
    WalkTransaction transaction(own);
    const bool filled = EmptyTable(own, sites) && EmptyTable(own, directories) &&
                        CopyRows(sites, {u"Name"_s, u"Action"_s, u"Query"_s, u"Method"_s, u"Type"_s}) &&
                        CopyVersion() && CopyRows(directories, {u"Name"_s, u"Categories"_s, u"Selected"_s});
    if (transaction.Commit() && filled)
        return {};
    return own.Failure().isEmpty() ? u"It was interrupted."_s : own.Failure();
}

// Each yield stands before its row, so that what other handlers do to the controls is seen before they are
// used again.
bool SiteDatabaseUpdate::CopyRows(const QString &table, const QStringList &fields) {
    DataControl &master = parts.project.database.Data1;
    DataControl &own = parts.project.database.Data2;
    TableWalk masterRows(master, table);
    const TableWalk ownRows(own, table);
    if (!master.IsOpen())
        return false;
    const int rows = masterRows.RowCount();
    for (int row = 0; row < rows; ++row) {
        parts.queue.Yield();
        if (parts.queue.Closing() || !masterRows.GoTo(row) || !ownRows.OnSameFile() ||
            !EnsureRecordSource(own, table) || !AddCopyOf(master, own, fields))
            return false;
    }
    return true;
}

bool SiteDatabaseUpdate::CopyVersion() {
    const QString version = u"Version"_s;
    DataControl &master = parts.project.database.Data1;
    DataControl &own = parts.project.database.Data2;
    return master.MoveFirst() && own.MoveFirst() && own.Edit() &&
           own.SetNumber(version, master.Number(version)) && own.Update();
}

void SiteDatabaseUpdate::TellDone() {
    parts.dialogs.Show({.text = u"Search engine database updated successfully. The new web sites are "
                                u"automatically selected.\r\n\r\nYou must restart the program."_s,
                        .title = u"New search engine database"_s,
                        .icon = BoxIcon::Information});
}

// List1 still holds what the session had open before. Its length decides how many rows are selected: at the
// start of the program none, against the words of the box. The fields are not stored, because the boxes, too,
// hold what was open before.
void SiteDatabaseUpdate::StoreSelection() {
    if (parts.project.lists.List1.ListCount() == 0 ||
        SaveSiteSelection(parts.project, parts.status, parts.queue))
        return;
    parts.dialogs.Show({.text = u"The selection could not be saved. "_s,
                        .title = u"Error"_s,
                        .icon = BoxIcon::Critical,
                        .detail = parts.project.database.Data2.Failure()});
}

// A file that can't be compacted stays as it is, and so does the backup beside it.
void SiteDatabaseUpdate::CloseAndCompact() {
    const QString &base = parts.project.path.Base;
    parts.project.database.Unbind();
    CompactThroughBackup(base, base + u".bak"_s, SiteSchema());
}

} // namespace lanterra
