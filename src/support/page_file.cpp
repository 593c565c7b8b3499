#include "support/page_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lanterra {

namespace {

/// Marks the file as being written until it is closed.
bool Take(int handle) { return ::flock(handle, LOCK_EX | LOCK_NB) == 0; }

/// A plain file without other names, open for writing; -1 if that isn't what stands there, or if another page
/// of the same name is still being written to it.
int OpenExisting(const char *path) {
    const int handle = ::open(path, O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    struct stat found {};
    if (handle < 0 ||
        (::fstat(handle, &found) == 0 && S_ISREG(found.st_mode) && found.st_nlink == 1 && Take(handle)))
        return handle;
    ::close(handle);
    return -1;
}

int OpenNew(const char *path) {
    ::unlink(path);
    // O_EXCL fails on anything that came back to this name meanwhile, a link included.
    const int handle = ::open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (handle >= 0)
        Take(handle);
    return handle;
}

} // namespace

void PageFile::Open(const QString &path) {
    if (path.isEmpty())
        return;
    const QByteArray name = QFile::encodeName(path);
    int handle = OpenExisting(name.constData());
    if (handle < 0)
        handle = OpenNew(name.constData());
    if (handle >= 0)
        file.open(handle, QIODevice::WriteOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle);
}

void PageFile::Write(QByteArrayView bytes) {
    if (!file.isOpen() || bytes.isEmpty())
        return;
    // The old page is cut behind the new bytes and not before them: a file system may take the cut to
    // nothing for a replacement that it has to bring to the disk at once.
    const bool first = file.pos() == 0;
    const bool whole = file.write(bytes.data(), bytes.size()) == bytes.size();
    const bool cut = !first || file.resize(file.pos());
    if (!whole || !cut)
        file.close();
}

void PageFile::Close() {
    if (file.isOpen() && file.pos() == 0)
        file.resize(0);
    file.close();
}

} // namespace lanterra
