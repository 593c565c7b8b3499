#pragma once

#include <QString>
#include <QStringList>

namespace lanterra {

/// Writes a database of these empty tables, whole or not at all, replacing what is there. False if a CREATE
/// TABLE statement fails or the file could not be written.
bool CreateDatabase(const QString &path, const QStringList &statements);

/// Writes a compacted copy of a closed database under a new name, whole or not at all, replacing what is
/// there. False if the source is no sound database or the copy could not be written.
bool CompactDatabase(const QString &source, const QString &destination);

/// Repairs a closed database in place: rows and indexes that can be read are kept, in their order. A sound
/// one is left as it is. False, with the file untouched, if it can't be repaired.
bool RepairDatabase(const QString &path);

} // namespace lanterra
