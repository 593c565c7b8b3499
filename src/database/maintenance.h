#pragma once

#include <QString>

namespace lanterra {

/// Writes a compacted copy of a closed database under a new name, whole or not at all, replacing what is there.
/// False if the source is no sound database or the copy could not be written.
bool CompactDatabase(const QString &source, const QString &destination);

/// Repairs a closed database in place: rows and indexes that can be read are kept. False, with the file
/// untouched, if it can't be repaired.
bool RepairDatabase(const QString &path);

} // namespace lanterra
