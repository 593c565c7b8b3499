#pragma once

#include <QtGlobal>
#include <csignal>
#include <sys/resource.h>

namespace lanterra {

/// Stands for a full disk: no file of this process grows above `bytes` while it lives.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        // Without this the process would be ended instead of the write falling short.
        oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &oldLimit);
        const rlimit limit{bytes, oldLimit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &oldLimit);
        std::signal(SIGXFSZ, oldHandler);
    }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    rlimit oldLimit{};
    void (*oldHandler)(int) = nullptr;
};

} // namespace lanterra
