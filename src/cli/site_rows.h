#pragma once

#include "cli/outcome.h"
#include "shell/program.h"

#include <vector>

namespace lanterra {

/// Finds the sites of these names in List1, ignoring case, and adds their positions to `rows`. Fails at the
/// first name that is none, naming it.
Outcome FindSites(const QStringList &names, const Project &project, std::vector<int> &rows);

/// The kind of each site, by its position in List1.
QStringList SiteKinds(Project &project);

} // namespace lanterra
