#include "project/site_database.h"

#include "database/walk_transaction.h"
#include "support/file_names.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

bool Bind(DataControl &control, const QString &file, const QString &table) {
    control.Close();
    control.SetDatabaseName(file);
    control.SetRecordSource(table);
    return control.Refresh();
}

} // namespace

SiteDatabase::SiteDatabase(DatabaseFiles &databaseFiles, const ProjectPath &projectPath)
    : Data1(databaseFiles, DataControl::Access::ReadOnly),
      Data2(databaseFiles, DataControl::Access::ReadWrite),
      Data3(databaseFiles, DataControl::Access::ReadWrite), path(projectPath) {}

bool SiteDatabase::BindMaster() { return Bind(Data1, path.MasterFile(), u"Data"_s); }

bool SiteDatabase::BindProject() {
    const bool isMaster = IsSameFile(path.Base, path.MasterFile());
    return Bind(Data2, isMaster ? QString() : path.Base, u"Data"_s);
}

bool SiteDatabase::BindStats() {
    if (Data3.IsOpen())
        return true;
    return Bind(Data3, Data2.DatabaseName(), u"Stats"_s);
}

void SiteDatabase::Unbind() {
    for (DataControl *control : {&Data1, &Data2, &Data3}) {
        control->Close();
        control->SetDatabaseName(QString());
    }
}

bool EnsureRecordSource(DataControl &control, const QString &table) {
    if (control.RecordSource() == table && control.IsOpen())
        return true;
    control.SetRecordSource(table);
    return control.Refresh();
}

void LeaveReplacedFile(DataControl &control) {
    if (!control.IsInPlace())
        control.Close();
}

bool EmptyTable(DataControl &control, const QString &table) {
    if (!EnsureRecordSource(control, table))
        return false;
    WalkTransaction walk(control);
    while (control.MoveFirst() && control.Delete()) {
    }
    return walk.Commit() && control.RowCount() == 0;
}

TableWalk::TableWalk(DataControl &dataControl, const QString &tableName)
    : control(dataControl), table(tableName), file(dataControl.DatabaseName()) {
    EnsureRecordSource(control, table);
}

bool TableWalk::GoTo(int row) {
    return OnSameFile() && EnsureRecordSource(control, table) && control.MoveTo(row);
}

} // namespace lanterra
