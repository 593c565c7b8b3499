#include "cli/site_rows.h"

#include "cli/name_lookup.h"

using namespace Qt::StringLiterals;

namespace lanterra {

Outcome FindSites(const QStringList &names, const Project &project, std::vector<int> &rows) {
    const QStringList &sites = project.lists.List1.Items();
    for (const QString &name : names) {
        const qsizetype row = IndexOfName(sites, name);
        if (row < 0)
            return Outcome::Failed(u"There is no site '%1'; \"lanterra-cli sites\" lists all."_s.arg(name));
        rows.push_back(static_cast<int>(row));
    }
    return {};
}

QStringList SiteKinds(Project &project) {
    QStringList kinds;
    DataControl &sites = project.database.Data2;
    EnsureRecordSource(sites, u"Data"_s);
    for (int row = 0; row < project.lists.List1.ListCount(); ++row)
        kinds << (sites.MoveTo(row) ? sites.Text(u"Type"_s) : QString());
    return kinds;
}

} // namespace lanterra
