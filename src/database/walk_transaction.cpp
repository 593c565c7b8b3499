#include "database/walk_transaction.h"

#include "database/data_control.h"

namespace lanterra {

WalkTransaction::WalkTransaction(DataControl &walkedControl)
    : control(walkedControl), file(walkedControl.file) {
    if (walkedControl.file)
        walk = walkedControl.file->BeginWalk();
}

WalkTransaction::~WalkTransaction() { Commit(); }

bool WalkTransaction::Commit() {
    if (!walk)
        return true;
    if (const std::shared_ptr<DatabaseFile> open = file.lock(); open && !ended)
        open->EndWalk();
    ended = true;
    return walk->failure.isEmpty() || control.Fail(walk->failure);
}

} // namespace lanterra
