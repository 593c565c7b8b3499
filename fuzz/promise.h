#pragma once

#include <cstdio>
#include <cstdlib>

namespace lanterra {

/// Ends the process, which the fuzzer takes for a finding, unless the promise holds.
inline void Promise(bool holds, const char *promise) {
    if (holds)
        return;
    std::fprintf(stderr, "Broken promise: %s\n", promise);
    std::abort();
}

} // namespace lanterra
