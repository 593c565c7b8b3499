#pragma once

#include "ports/dialogs.h"
#include "project/project.h"

namespace lanterra {

/// Brings an open project up to a newer master database, and ends the program.
class SiteDatabaseImport {
public:
    virtual ~SiteDatabaseImport() = default;
    virtual void ImportSiteDatabase() = 0;
};

/// Fills List1 and List2 from the open project. If the master is newer than the project and an import is
/// given, the import runs instead. A project that isn't bound or is without a first site starts no import and
/// leaves the lists empty.
void ReadSiteLists(Project &project, SiteDatabaseImport *import);

} // namespace lanterra
