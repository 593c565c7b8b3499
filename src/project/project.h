#pragma once

#include "project/project_path.h"
#include "project/project_record.h"
#include "project/site_database.h"
#include "project/site_lists.h"

namespace lanterra {

/// The open project: where it lies, what it says, its lists and its bound data objects.
struct Project {
    /// `databaseFiles` must outlive this.
    Project(const QString &programFolder, DatabaseFiles &databaseFiles)
        : path(programFolder), database(databaseFiles, path) {}

    ProjectPath path;
    ProjectRecord record;
    SiteLists lists;
    SiteDatabase database;
};

} // namespace lanterra
