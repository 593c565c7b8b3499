#include "platform/body_file.h"

namespace lanterra {

void BodyFile::Open(const QString &path) {
    if (path.isEmpty())
        return;
    QFile::remove(path);
    file.setFileName(path);
    // NewOnly fails on anything that came back to this name meanwhile, a link included.
    file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered);
}

void BodyFile::Write(QByteArrayView bytes) {
    if (file.isOpen() && file.write(bytes.data(), bytes.size()) != bytes.size())
        file.close();
}

void BodyFile::Close() { file.close(); }

} // namespace lanterra
