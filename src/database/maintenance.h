#pragma once

#include "database/table_schema.h"

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

/// Replaces a closed database by its compacted copy and leaves that copy beside it as `backup`. Returns why
/// that failed, one sentence, with the database as it was; else an empty text. Refused are a database that
/// isn't sound or holds other tables than the wanted ones, and one that another program uses or changes. An
/// unsound one never takes the place of the backup.
QString CompactThroughBackup(const QString &path, const QString &backup, const DatabaseSchema &wanted);

/// Changes the closed database of this path. Returns why that failed, one sentence, else an empty text.
using DatabaseChange = std::function<QString(const QString &path)>;

/// Replaces `destination` by a copy of `source`, byte for byte, or by what `change` made of one under another
/// name, whole or not at all. No other program writes the source meanwhile, and no journal of the old file
/// comes under the new one. Returns why that failed, one sentence, with `destination` as it was; else an
/// empty text.
QString CopyDatabase(const QString &source, const QString &destination, const DatabaseChange &change = {});

/// Repairs a closed database in place: rows and indexes that can be read are kept, in their order. A sound
/// one is left as it is. False, with the file untouched, if it can't be repaired.
bool RepairDatabase(const QString &path);

} // namespace lanterra
