#include "project/site_selection.h"

using namespace Qt::StringLiterals;

namespace lanterra {

void SiteSelection::Command3_Click() {
    if (project.lists.List1.Enabled())
        project.lists.List1.SetAllSelected(false);
}

void SiteSelection::Command4_Click() {
    if (project.lists.List1.Enabled())
        project.lists.List1.SetAllSelected(true);
}

void SiteSelection::Command6_Click() {
    if (project.lists.List1.Enabled())
        project.lists.List1.InvertSelected();
}

void SiteSelection::mnuEngDir_Click() { SelectByType(u"directory"_s); }

void SiteSelection::mnuEngEng_Click() { SelectByType(u"engine"_s); }

void SiteSelection::mnuEngLnk_Click() { SelectByType(u"list"_s); }

void SiteSelection::mnuEngReg_Click() { SelectByRegistration(u"reg"_s); }

void SiteSelection::mnuEngNot_Click() { SelectByRegistration(u"nereg"_s); }

// The marks are set in one step behind the walk: a run that starts in one of its yields takes the selection
// as it was, and the list on screen is painted once.
template <class Test>
void SiteSelection::MarkRows(const Test &test) {
    ListBox &list = project.lists.List1;
    if (list.ListCount() == 0 || !list.Enabled())
        return;
    DataControl &table = project.database.Data2;
    const QString data = u"Data"_s;
    EnsureRecordSource(table, data);
    std::vector<bool> marks;
    const int rows = table.RowCount();
    for (int row = 0; row < rows && ReturnToRow(table, data, row) && !queue.Closing(); ++row) {
        marks.push_back(test(table));
        queue.Yield();
    }
    if (list.Enabled())
        list.SetMarks(marks);
}

void SiteSelection::SelectByType(const QString &word) {
    MarkRows([&](const DataControl &row) { return row.Text(u"Type"_s).contains(word, Qt::CaseInsensitive); });
}

void SiteSelection::SelectByRegistration(const QString &word) {
    if (project.lists.List1.ListCount() == 0 || !project.lists.List1.Enabled())
        return;
    const bool wanted = word.toLower() == "reg"_L1;
    const QString successes = JoinedSuccesses();
    MarkRows([&](const DataControl &row) {
        return successes.contains(row.Text(u"Name"_s), Qt::CaseInsensitive) == wanted;
    });
}

QString SiteSelection::JoinedSuccesses() {
    DataControl &sessions = project.database.Data3;
    QString joined;
    project.database.BindStats();
    const int rows = sessions.RowCount();
    for (int row = 0; row < rows && ReturnToRow(sessions, u"Stats"_s, row); ++row) {
        joined += sessions.Text(u"Successful Submissions"_s);
        queue.Yield();
    }
    return joined;
}

} // namespace lanterra
