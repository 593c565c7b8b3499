#pragma once

#include "project/project_record.h"

namespace lanterra {

/// What a run puts right in the entries of a project. Whoever shows a request before it is sent does the same
/// first, so that both are made of the same values.

/// An empty fax number takes that of the telephone. A run does this before it checks the fields.
void TakeFaxFromPhone(ProjectRecord &record);

/// Brings the time limit into its bounds.
void CorrectTimeLimit(ProjectRecord &record);

/// Does that, joins both names in txtName, and replaces a subject that sites don't know. A run does this once
/// its checks have passed.
void CorrectEntries(ProjectRecord &record);

} // namespace lanterra
