#pragma once

#include "project/project_store.h"

namespace lanterra {

/// Writes the open project into the file `Base` and leaves the data objects bound to it and to the master:
/// record and selection into the file that is there, both in one step, or, with a `source`, into a copy of
/// that file, which takes the name `Base` once it holds everything. Without listed sites the file, or the
/// copy, stays as it is. Not stored if the file can't be written or holds other sites than those listed; it
/// is then as it was. Yields, and shows its progress on `status`.
StoreResult StoreProject(Project &project, const QString &source, StatusForm &status, EventQueue &queue);

/// The file that a project saved under another name starts from: its own, or the master where that path leads
/// to no database, or to other sites by now; saving it anew is the way out of both. A file that can't be read
/// at the moment stays the source, as its statistics go with it.
QString SourceOfCopy(Project &project);

} // namespace lanterra
