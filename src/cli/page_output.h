#pragma once

#include "cli/command.h"

namespace lanterra {

/// The end of a command that writes a page to be opened in a browser: prints its path, with --json as the one
/// value "page" of an object. Failed if it was not written.
Outcome PrintPage(const CommandCall &call, const QString &path, bool written);

} // namespace lanterra
