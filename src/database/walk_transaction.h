#pragma once

namespace lanterra {

class DataControl;

/// Gathers all that is committed on the file of a data control, from here to the end of this object, into one
/// transaction, so that a walk over many rows costs one flush of the disk. Walks on one file nest; the outermost
/// ends the transaction. What was reached is kept when the walk stops early.
class WalkTransaction {
public:
    /// The control must be bound and refreshed; on one that isn't, every row commits by itself.
    explicit WalkTransaction(DataControl &control);
    ~WalkTransaction();
    WalkTransaction(const WalkTransaction &) = delete;
    WalkTransaction &operator=(const WalkTransaction &) = delete;

    /// Ends the walk. False if the rows could not be stored; all of them are then as they were before.
    bool Commit();
};

} // namespace lanterra
