#include "tests/soak/process_use.h"

#include <QDir>
#include <malloc.h>
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/allocator_interface.h>
#endif

namespace lanterra {

ProcessUse ProcessUse::Now() {
    ProcessUse use;
#ifdef __SANITIZE_ADDRESS__
    use.allocatedBytes = static_cast<long>(__sanitizer_get_current_allocated_bytes());
#else
    use.allocatedBytes = static_cast<long>(mallinfo2().uordblks);
#endif
    use.openDescriptors =
        static_cast<int>(QDir(QStringLiteral("/proc/self/fd"))
                             .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                             .size());
    return use;
}

} // namespace lanterra
