#pragma once

#include "cli/project_session.h"

#include <functional>

namespace lanterra {

/// Presses a button of the search pane, waits for the end of the transfer and prints the path of the saved
/// answer, or with --json an object with `file` and `bytes`. Ctrl-C cancels. Yields.
Outcome FetchAnswer(const CommandCall &call, WebSearch &search, const std::function<void()> &press);

} // namespace lanterra
