#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace lanterra {

/// Puts the first rows into the new database of this path and closes it. False if that failed.
using DatabaseFiller = std::function<bool(const QString &path)>;

/// Writes a database of these tables, whole or not at all, replacing what is there. It is empty, or holds
/// what `fill` wrote into it under another name. False if a CREATE TABLE statement fails, if `fill` returns
/// false, or if the file could not be written.
bool CreateDatabase(const QString &path, const QStringList &statements, const DatabaseFiller &fill = {});

/// Writes a compacted copy of a closed database under a new name, whole or not at all, replacing what is
/// there. False if the source is no sound database or the copy could not be written.
bool CompactDatabase(const QString &source, const QString &destination);

/// Repairs a closed database in place: rows and indexes that can be read are kept, in their order. A sound
/// one is left as it is. False, with the file untouched, if it can't be repaired.
bool RepairDatabase(const QString &path);

} // namespace lanterra
