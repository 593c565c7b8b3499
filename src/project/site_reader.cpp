#include "project/site_reader.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

int FirstRowVersion(DataControl &table) { return table.MoveFirst() ? table.Number(u"Version"_s) : 0; }

// The first row with an empty name ends the list, even if more rows follow.
void ReadSites(DataControl &table, ListBox &list) {
    QStringList names;
    std::vector<bool> marks;
    for (bool here = table.MoveFirst(); here; here = table.MoveNext()) {
        const QString name = table.Text(u"Name"_s);
        if (name.isEmpty())
            break;
        names.append(name);
        marks.push_back(table.Boolean(u"Selected"_s));
    }
    list.SetItems(names);
    list.SetMarks(marks);
}

void ReadDirectories(DataControl &table, ListBox &list) {
    QStringList names;
    for (bool here = table.MoveFirst(); here; here = table.MoveNext())
        names.append(table.Text(u"Name"_s));
    list.SetItems(names);
}

} // namespace

bool ReadSiteLists(Project &project, SiteDatabaseImport *import) {
    if (project.path.Base.isEmpty())
        return false;
    DataControl &own = project.database.Data2;
    DataControl &master = project.database.Data1;
    // A file in use is waited for once, when it is bound, and not for each of its tables.
    if (own.IsOpen())
        EnsureRecordSource(own, u"Data"_s);
    EnsureRecordSource(master, u"Data"_s);
    if (import && own.MoveFirst() && FirstRowVersion(master) > FirstRowVersion(own) &&
        import->ImportSiteDatabase())
        return true;
    ReadSites(own, project.lists.List1);
    project.lists.List2.Clear();
    project.lists.List3.Clear();
    if (own.IsOpen() && EnsureRecordSource(own, u"Categories"_s))
        ReadDirectories(own, project.lists.List2);
    return false;
}

} // namespace lanterra
