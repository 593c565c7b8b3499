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

void CutBoxes(ProjectRecord &record) {
    for (const ProjectRecord::TextField &field : record.TextFields()) {
        if (field.cutOnSave)
            field.box->SetText(CutToFieldSize(field.box->Text()));
    }
}

// The texts of the slots that aren't on show are cut as their boxes would be.
bool WriteSlot(Project &project, int slot, QStringList &refused) {
    DataControl &row = project.database.Data2;
    for (int column = 0; column < MultiUrlTable::columnCount; ++column) {
        const ProjectRecord::TextField &field = project.record.FieldOfColumn(column);
        const QString text = project.record.multiUrlTable.Cell(slot, column);
        SetTextField(row, field.name, field.cutOnSave ? CutToFieldSize(text) : text, refused);
    }
    return row.Update();
}

bool WriteUrlRows(Project &project, QStringList &refused) {
    DataControl &table = project.database.Data2;
    bool stored = true;
    if (table.RowCount() >= 2)
        stored = DeleteUrlRows(project) && table.MoveFirst() && table.Edit();
    else
        stored = table.AddNew();
    stored = WriteSlot(project, 0, refused) && stored;
    for (int slot = 0; slot <= project.record.MultiUrlUpper; ++slot)
        stored = table.AddNew() && WriteSlot(project, slot, refused) && stored;
    return stored;
}

// In several-URL mode, too, the record's row holds what stands in the boxes: the slot on show.
bool WriteRecordRow(Project &project, QStringList &refused) {
    DataControl &row = project.database.Data2;
    if (row.MoveFirst())
        row.Edit();
    else
        row.AddNew();
    for (const ProjectRecord::TextField &field : project.record.TextFields())
        SetTextField(row, field.name, field.box->Text(), refused);
    for (const ProjectRecord::CheckField &field : project.record.CheckFields())
        row.SetNumber(field.name, field.box->Value());
    return row.Update();
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
    TableWalk urlRows(table, u"Project"_s);
    const int rows = urlRows.RowCount();
    for (int row = 1; row < rows && urlRows.GoTo(row); ++row) {
        for (int column = 0; column < MultiUrlTable::columnCount; ++column) {
            const QString text = table.Text(project.record.FieldOfColumn(column).name);
            project.record.multiUrlTable.SetCell(row - 1, column, text);
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
    CutBoxes(project.record);
    bool stored = true;
    if (project.record.MultiUrlMode())
        stored = WriteUrlRows(project, result.refused);
    stored = WriteRecordRow(project, result.refused) && stored;
    result.stored = walk.Commit() && stored;
    result.failure = result.stored ? QString() : table.Failure();
    return result;
}

void LoadProjectFields(Project &project, Dialogs &dialogs, EventQueue &queue) {
    DataControl &table = project.database.Data2;
    if (!table.IsOpen() || !EnsureRecordSource(table, u"Data"_s) || table.RowCount() == 0) {
        dialogs.Show({.text = u"Error! Invalid project file. "_s,
                      .title = u"Error"_s,
                      .icon = BoxIcon::Critical,
                      .detail = table.Failure()});
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

bool HoldsListedSites(Project &project) {
    DataControl &table = project.database.Data2;
    const ListBox &sites = project.lists.List1;
    bool same = EnsureRecordSource(table, u"Data"_s);
    for (int row = 0; row < sites.ListCount() && same; ++row)
        same = table.MoveTo(row) && table.Text(u"Name"_s) == sites.Item(row);
    return same;
}

bool SaveSiteSelection(Project &project, StatusForm &status, EventQueue &queue) {
    DataControl &table = project.database.Data2;
    LeaveReplacedFile(table);
    TableWalk sites(table, u"Data"_s);
    if (!table.IsOpen())
        return false;
    WalkTransaction transaction(table);
    const int rows = sites.RowCount();
    status.Show(u"Saving search engine data ..."_s, rows - 1);
    bool stored = true;
    for (int row = 0; row < rows && !status.StatusCancel; ++row) {
        stored = sites.GoTo(row) && table.Edit() &&
                 table.SetBoolean(u"Selected"_s, project.lists.List1.Selected(row)) && table.Update() &&
                 stored;
        status.Advance(row);
        queue.Yield();
    }
    status.Finish();
    return transaction.Commit() && stored;
}

} // namespace lanterra
