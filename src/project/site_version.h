#pragma once

#include <QString>

namespace lanterra {

/// The version of a site database, master or project: that of its first site. 0 if the file can't be read or
/// holds no site.
int SiteDatabaseVersion(const QString &path);

} // namespace lanterra
