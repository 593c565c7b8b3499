#include "project/site_version.h"

#include "database/data_control.h"
#include "database/database_files.h"
#include "project/site_schema.h"

using namespace Qt::StringLiterals;

namespace lanterra {

int SiteDatabaseVersion(const QString &path) {
    DatabaseFiles files(SiteSchema());
    DataControl sites(files, DataControl::Access::ReadOnly);
    sites.SetDatabaseName(path);
    sites.SetRecordSource(u"Data"_s);
    return sites.Refresh() ? sites.Number(u"Version"_s) : 0;
}

} // namespace lanterra
