#pragma once

#include <QByteArray>
#include <QFile>

namespace lanterra {

/// The bytes of a file, "no file" if it can't be read.
inline QByteArray BytesOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

} // namespace lanterra
