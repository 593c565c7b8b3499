#pragma once

#include "database/data_control.h"
#include "project/project_path.h"

#include <QString>

namespace lanterra {

class DatabaseFiles;

/// The three bound data objects: the master, the open project, and the project's statistics. A routine that
/// needs a table tests the record source first and rebinds only then; nothing restores the table that was
/// bound before.
class SiteDatabase {
public:
    /// Both must outlive this.
    SiteDatabase(DatabaseFiles &databaseFiles, const ProjectPath &projectPath);

    /// Binds Data1 to table "Data" of the master. False if that is no sound database; Data1 tells why.
    bool BindMaster();

    /// Binds Data2 to table "Data" of the file `Base`. False for a file that is no sound database, and for
    /// the master, which is never written.
    bool BindProject();

    /// Gives Data3 the file of Data2 and table "Stats" if it has no file yet. False if it can't be read.
    bool BindStats();

    /// Closes all three and empties their names, so that no file stays open.
    void Unbind();

    DataControl Data1, Data2, Data3;

private:
    const ProjectPath &path;
};

/// Makes the control's row set that of `table`, with a refresh only if it isn't already. False, with no row
/// set, if that failed.
bool EnsureRecordSource(DataControl &control, const QString &table);

/// Closes a control whose file another program, such as a second instance that ended, has replaced, so that
/// the next EnsureRecordSource reads the new one.
void LeaveReplacedFile(DataControl &control);

/// Deletes all rows of a table, all or none. False if that failed. The control stays on the table.
bool EmptyTable(DataControl &control, const QString &table);

/// A walk over the rows of a table whose steps yield. Other handlers may move the control or turn it to
/// another table meanwhile, and each step brings it back; one that was bound to another file ends the walk.
class TableWalk {
public:
    TableWalk(DataControl &dataControl, const QString &tableName);

    int RowCount() const { return control.RowCount(); }

    /// Stands on a row, counted from 0. False if it is gone or the control stands on another file.
    bool GoTo(int row);

    /// Whether the control still stands on the file of the walk's beginning.
    bool OnSameFile() const { return control.DatabaseName() == file; }

private:
    DataControl &control;
    QString table;
    QString file;
};

} // namespace lanterra
