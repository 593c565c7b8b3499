#pragma once

#include "database/maintenance.h"
#include "database/table_schema.h"

namespace lanterra {

/// The tables of a site database, master and project alike: "Data" (the sites), "Categories" (the directories
/// that want one chosen), "Project" (the stored record) and "Stats" (one row a run). The file site_schema.sql
/// declares them. Give it to DatabaseFiles, and it opens no file with other tables or fields.
DatabaseSchema SiteSchema();

/// Writes a site database, whole or not at all, replacing what is there. It has no rows but those of `fill`.
/// False if it could not be written.
bool CreateSiteDatabase(const QString &path, const DatabaseFiller &fill = {});

} // namespace lanterra
