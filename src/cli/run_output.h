#pragma once

#include "cli/command.h"
#include "shell/program.h"

namespace lanterra {

/// Prints what the last run came to: its summary, or with --text the report screen line by line.
void PrintRun(const CommandCall &call, Program &program);

/// What the checks of a run refuse, in more words than their box has.
Outcome ChecksRefusal(ProjectRecord &record);

} // namespace lanterra
