#include "project/site_selection.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {
const QString lineEnd = u"\r\n"_s;
}

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
// as it was, marks of one project never fall on the list of another, and the list is painted once.
template <class Test>
void SiteSelection::MarkRows(const Test &test) {
    ListBox &list = project.lists.List1;
    if (list.ListCount() == 0 || !list.Enabled())
        return;
    DataControl &table = project.database.Data2;
    TableWalk sites(table, u"Data"_s);
    std::vector<bool> marks;
    const int rows = sites.RowCount();
    for (int row = 0; row < rows && sites.GoTo(row) && !queue.Closing(); ++row) {
        marks.push_back(test(table));
        queue.Yield();
    }
    if (list.Enabled() && sites.OnSameFile())
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

// Each name once: the sessions of years name the same sites again and again.
QString SiteSelection::JoinedSuccesses() {
    DataControl &table = project.database.Data3;
    project.database.BindStats();
    TableWalk sessions(table, u"Stats"_s);
    QSet<QString> names;
    const int rows = sessions.RowCount();
    for (int row = 0; row < rows && sessions.GoTo(row) && !queue.Closing(); ++row) {
        for (const QString &name : table.Text(u"Successful Submissions"_s).split(lineEnd))
            names.insert(name);
        queue.Yield();
    }
    return QStringList(names.begin(), names.end()).join(lineEnd);
}

} // namespace lanterra
