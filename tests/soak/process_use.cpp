#include "tests/soak/process_use.h"

#include <QDir>
#include <malloc.h>
#ifdef __SANITIZE_ADDRESS__
// mallinfo2 knows nothing of the sanitizer's own heap. GCC brings this function without its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // NOLINT(bugprone-reserved-identifier)
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
