#include "project/site_database.h"

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
    : Data1(databaseFiles, DataControl::Access::ReadOnly), Data2(databaseFiles, DataControl::Access::ReadWrite),
      Data3(databaseFiles, DataControl::Access::ReadWrite), path(projectPath) {}

bool SiteDatabase::BindMaster() {
    return Bind(Data1, path.MasterFile(), u"Data"_s);
}

bool SiteDatabase::BindProject() {
    return Bind(Data2, path.Base, u"Data"_s);
}

bool SiteDatabase::BindStats() {
    if (!Data3.DatabaseName().isEmpty())
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
    if (control.RecordSource() == table)
        return true;
    control.SetRecordSource(table);
    return control.Refresh();
}

bool ReturnToRow(DataControl &control, const QString &table, int row) {
    return EnsureRecordSource(control, table) && control.MoveTo(row);
}

} // namespace lanterra
