#pragma once

#include "database/database_file.h"

namespace lanterra {

class DataControl;

/// Gathers all that is committed on the file of a data control, from here to the end of this object, into one
/// transaction, so that a walk over many rows costs one flush of the disk. Walks on one file nest; the
/// outermost ends the transaction. What was reached is kept when the walk stops early. The first row that
/// can't be written fails the whole walk: nothing of it is stored, and no later row is tried.
class WalkTransaction {
public:
    /// The control must be bound and refreshed; on one that isn't, every row commits by itself. It must
    /// outlive the walk, but may be closed before its end.
    explicit WalkTransaction(DataControl &control);
    ~WalkTransaction();
    Q_DISABLE_COPY_MOVE(WalkTransaction)

    /// Ends the walk. False if the rows could not be stored; all of them are then as they were before, and
    /// the control tells why in its Failure(). A nested walk reports what has failed so far.
    bool Commit();

private:
    DataControl &control;
    std::weak_ptr<DatabaseFile> file; ///< gone once the file was closed
    std::shared_ptr<DatabaseFile::Walk> walk;
    bool ended = false;
};

} // namespace lanterra
