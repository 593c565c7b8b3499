#include "project/project_store.h"

#include "database/walk_transaction.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// A text that does not fit its field fails alone: the other fields of the row are stored.
void SetTextField(DataControl &row, const QString &name, const QString &text, QStringList &refused) {
    if (!row.SetText(name, text) && !refused.contains(name))
        refused.append(name);
}

void WriteSlot(Project &project, int slot, QStringList &refused) {
    DataControl &row = project.database.Data2;
    for (int column = 0; column < MultiUrlTable::columnCount; ++column) {
        const QString field = project.record.BoxOfColumn(column).objectName();
        SetTextField(row, field, project.record.multiUrlTable.Cell(slot, column), refused);
    }
    row.Update();
}

void WriteUrlRows(Project &project, QStringList &refused) {
    DataControl &table = project.database.Data2;
    if (table.RowCount() >= 2) {
        DeleteUrlRows(project);
        table.MoveFirst();
        table.Edit();
    } else {
        table.AddNew();
    }
    WriteSlot(project, 0, refused);
    for (int slot = 0; slot <= project.record.MultiUrlUpper; ++slot) {
        table.AddNew();
        WriteSlot(project, slot, refused);
    }
}

void WriteRecordRow(Project &project, QStringList &refused) {
    DataControl &row = project.database.Data2;
    if (row.MoveFirst())
        row.Edit();
    else
        row.AddNew();
    for (const ProjectRecord::TextField &field : project.record.TextFields())
        SetTextField(row, field.name, field.box->Text(), refused);
    for (const ProjectRecord::CheckField &field : project.record.CheckFields())
        row.SetNumber(field.name, field.box->Value());
    row.Update();
}

void ReadRecordRow(Project &project) {
    const DataControl &row = project.database.Data2;
    for (const ProjectRecord::TextField &field : project.record.TextFields())
        field.box->SetText(row.Text(field.name));
    for (const ProjectRecord::CheckField &field : project.record.CheckFields()) {
        if (!row.IsNull(field.name))
            field.box->SetValue(row.Number(field.name));
    }
}

void ReadUrlRows(Project &project, EventQueue &queue) {
    DataControl &table = project.database.Data2;
    const int rows = table.RowCount();
    for (int row = 1; row < rows && ReturnToRow(table, u"Project"_s, row); ++row) {
        for (int column = 0; column < MultiUrlTable::columnCount; ++column) {
            const QString field = project.record.BoxOfColumn(column).objectName();
            project.record.multiUrlTable.SetCell(row - 1, column, table.Text(field));
        }
        queue.Yield();
    }
}

} // namespace

bool DeleteUrlRows(Project &project) {
    DataControl &table = project.database.Data2;
    if (!EnsureRecordSource(table, u"Project"_s))
        return false;
    WalkTransaction walk(table);
    while (table.RowCount() > 1 && table.MoveTo(1) && table.Delete()) {
    }
    return walk.Commit() && table.RowCount() <= 1;
}

StoreResult SaveProjectFields(Project &project) {
    StoreResult result;
    DataControl &table = project.database.Data2;
    if (!EnsureRecordSource(table, u"Project"_s)) {
        result.failure = table.Failure();
        return result;
    }
    WalkTransaction walk(table);
    if (project.record.MultiUrlMode())
        WriteUrlRows(project, result.refused);
    for (const ProjectRecord::TextField &field : project.record.TextFields()) {
        if (field.cutOnSave)
            field.box->SetText(CutToFieldSize(field.box->Text()));
    }
    WriteRecordRow(project, result.refused);
    result.stored = walk.Commit();
    result.failure = result.stored ? QString() : table.Failure();
    return result;
}

void LoadProjectFields(Project &project, Dialogs &dialogs, EventQueue &queue) {
    DataControl &table = project.database.Data2;
    if (!EnsureRecordSource(table, u"Data"_s) || table.RowCount() == 0) {
        dialogs.Show({u"Error! Invalid project file. "_s, u"Error"_s, BoxIcon::Critical});
        return;
    }
    if (!EnsureRecordSource(table, u"Project"_s) || !table.MoveFirst())
        return;
    ReadRecordRow(project);
    project.record.SetMultiUrlMode(false);
    if (table.RowCount() <= 1)
        return;
    ReadUrlRows(project, queue);
    project.record.SetMultiUrlMode(true);
}

bool SaveSiteSelection(Project &project, StatusForm &status, EventQueue &queue) {
    DataControl &table = project.database.Data2;
    const QString data = u"Data"_s;
    if (!EnsureRecordSource(table, data))
        return false;
    WalkTransaction walk(table);
    const int rows = table.RowCount();
    status.Show(u"Saving search engine data ..."_s, rows - 1);
    bool stored = true;
    for (int row = 0; row < rows && !status.StatusCancel && !queue.Closing(); ++row) {
        stored = ReturnToRow(table, data, row) && table.Edit() &&
                 table.SetBoolean(u"Selected"_s, project.lists.List1.Selected(row)) && table.Update() && stored;
        status.Advance(row);
        queue.Yield();
    }
    status.Finish();
    return walk.Commit() && stored;
}

} // namespace lanterra
