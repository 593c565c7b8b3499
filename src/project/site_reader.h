#pragma once

#include "project/project.h"

namespace lanterra {

/// Brings an open project up to a newer master database, and ends the program.
class SiteDatabaseImport {
public:
    virtual ~SiteDatabaseImport() = default;

    /// True if the project was brought up and the program ends now. False with the project as it was if that
    /// failed, which the user has been told. Yields.
    virtual bool ImportSiteDatabase() = 0;
};

/// Fills List1 and List2 from the open project. If the master is newer than the project and an import is
/// given, the import runs first; true if it ended the program, and the lists are then as they were. A project
/// that isn't bound or is without a first site starts no import and leaves the lists empty. Yields in the
/// import.
bool ReadSiteLists(Project &project, SiteDatabaseImport *import);

} // namespace lanterra
