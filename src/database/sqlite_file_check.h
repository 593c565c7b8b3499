#pragma once

#include <QString>

namespace lanterra {

/// Why SQLite must not be given this file, one sentence; empty if it may. Looks at the 100 bytes of the
/// header and at the size, because SQLite takes a file of 0 or 1 byte for an empty database and reads a cut
/// one until it meets the hole. A file with a rollback journal beside it may have any size: SQLite first
/// brings it back to its state before the write that was cut off. A write-ahead log is refused, as such a
/// file is not whole in itself.
///
/// Opens and closes the file, which ends all locks that this process holds on it; so never call it on a file
/// with a connection inside a transaction.
QString SqliteFileRefusal(const QString &path);

/// The refusal of a file that is there but can't be read now, which says nothing of its content.
QString UnreadableRefusal();

/// The path of the rollback journal that belongs to a database file.
QString JournalOf(const QString &path);

/// Whether a rollback journal stands beside the database file, so that the file alone may not be whole.
bool HasJournal(const QString &path);

} // namespace lanterra
