#pragma once

#include "cli/command.h"
#include "shell/program.h"

namespace lanterra {

/// Prints what the last run came to: its summary, or with --text the report screen line by line.
void PrintRun(const CommandCall &call, Program &program);

/// What the checks of a run refuse, in more words than their box has: the fields that are empty, and this
/// advice if none is.
Outcome ChecksRefusal(ProjectRecord &record,
                      const QString &advice = QStringLiteral("Choose one with: lanterra-cli category"));

} // namespace lanterra
