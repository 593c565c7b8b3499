#pragma once

namespace lanterra {

/// What this process holds of the system.
struct ProcessUse {
    long allocatedBytes = 0; ///< by malloc and new, in use
    int openDescriptors = 0;

    static ProcessUse Now();
};

} // namespace lanterra
