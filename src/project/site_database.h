#pragma once

#include "database/data_control.h"
#include "project/project_path.h"

#include <QString>

namespace lanterra {

class DatabaseFiles;

/// The three bound data objects: the master, the open project, and the project's statistics. A routine that needs
/// a table tests the record source first and rebinds only then; nothing restores the table that was bound before.
class SiteDatabase {
public:
    SiteDatabase(DatabaseFiles &databaseFiles, const ProjectPath &projectPath);

    /// Binds Data1 to table "Data" of the master.
    bool BindMaster();

    /// Binds Data2 to table "Data" of the file `Base`.
    bool BindProject();

    /// Gives Data3 the file of Data2 and table "Stats" if it has no file yet.
    bool BindStats();

    /// Closes all three and empties their names, so that no file stays open.
    void Unbind();

    DataControl Data1, Data2, Data3;

private:
    const ProjectPath &path;
};

/// Makes the control's row set that of `table`, with a refresh only if it was another one.
bool EnsureRecordSource(DataControl &control, const QString &table);

/// Stands on a row of a table behind a yield, when other handlers may have moved or rebound the control. False if
/// that row is gone.
bool ReturnToRow(DataControl &control, const QString &table, int row);

} // namespace lanterra
