#pragma once

#include <QString>

namespace lanterra {

/// Deletes the regular files and the links directly in a folder. Folders stay, and so does what a link points
/// to; what can't be deleted is passed over.
void DeleteFilesIn(const QString &folder);

} // namespace lanterra
