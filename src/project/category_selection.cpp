#include "project/category_selection.h"

#include "database/walk_transaction.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString categories = u"Categories"_s;
const QString selected = u"Selected"_s;

bool Choose(DataControl &row, const QString &category) {
    return row.Edit() && row.SetText(selected, category) && row.Update();
}

bool ChooseByKeyword(DataControl &row, const QString &keyword) {
    const QStringList offers = CategoriesOfRow(row);
    const auto match = std::find_if(offers.begin() + 1, offers.end(), [&](const QString &offer) {
        return offer.contains(keyword, Qt::CaseInsensitive);
    });
    if (match != offers.end() && !Choose(row, *match))
        return false;
    return !row.Text(selected).isEmpty() || Choose(row, offers.first());
}

} // namespace

QStringList CategoriesOfRow(const DataControl &row) { return row.Text(categories).split(u"\r\n"_s); }

bool CategorySelection::FindDirectory(const QString &name) {
    DataControl &table = project.database.Data2;
    LeaveReplacedFile(table);
    EnsureRecordSource(table, categories);
    for (bool here = table.MoveFirst(); here; here = table.MoveNext()) {
        if (table.Text(u"Name"_s) == name)
            return true;
    }
    return false;
}

void CategorySelection::List2_Click() {
    ListBox &offers = project.lists.List3;
    if (project.lists.List2.ListCount() == 0 || !FindDirectory(project.lists.List2.Text()))
        return;
    offers.SetItems(CategoriesOfRow(project.database.Data2).mid(1));
    offers.SetText(project.database.Data2.Text(selected));
}

void CategorySelection::List3_Click() {
    if (project.lists.List3.ListIndex() != ListBox::noEntry && !ChooseCategory())
        TellNotStored();
}

bool CategorySelection::ChooseCategory() {
    const ListBox &offers = project.lists.List3;
    return offers.ListIndex() != ListBox::noEntry && FindDirectory(project.lists.List2.Text()) &&
           Choose(project.database.Data2, offers.Text());
}

void CategorySelection::Command13_Click() {
    const bool stored = SelectByKeyword(project.record.txttrazim.Text());
    List2_Click(); // the list of categories shows the new choice
    if (!stored)
        TellNotStored();
}

void CategorySelection::TellNotStored() {
    dialogs.Show({.text = u"The category could not be stored. "_s,
                  .title = u"Error"_s,
                  .icon = BoxIcon::Critical,
                  .detail = project.database.Data2.Failure()});
}

bool CategorySelection::SelectByKeyword(const QString &keyword) {
    if (project.lists.List2.ListCount() == 0)
        return true;
    DataControl &table = project.database.Data2;
    TableWalk directories(table, categories);
    WalkTransaction transaction(table);
    bool stored = true;
    const int rows = directories.RowCount();
    for (int row = 0; row < rows && directories.GoTo(row) && !queue.Closing(); ++row) {
        stored = ChooseByKeyword(table, keyword) && stored;
        queue.Yield();
    }
    return transaction.Commit() && stored;
}

} // namespace lanterra
