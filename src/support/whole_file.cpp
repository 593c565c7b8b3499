#include "support/whole_file.h"

#include "support/file_names.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>
#include <filesystem>
#include <utility>

namespace lanterra {

namespace {

/// Where the bytes go first. QSaveFile writes through a link to what it points at; a name of its own beside
/// the link keeps it from that.
QString WrittenPath(const QString &target) {
    if (!QFileInfo(target).isSymLink())
        return target;
    return target + u'.' + QUuid::createUuid().toString(QUuid::Id128);
}

bool Rename(const QString &from, const QString &to) {
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(), QFileInfo(to).filesystemFilePath(), error);
    if (error)
        QFile::remove(from);
    return !error;
}

} // namespace

WholeFile::WholeFile(const QString &path)
    : target(path), file(WrittenPath(path)), good(file.open(QIODevice::WriteOnly)) {}

bool WholeFile::Write(const QByteArray &bytes) {
    good = good && file.write(bytes) == bytes.size();
    return good;
}

bool WholeFile::Commit() {
    // Commit alone doesn't notice that what was still buffered found no room.
    good = good && file.flush() && file.commit();
    if (good && file.fileName() != target)
        good = Rename(file.fileName(), target);
    return std::exchange(good, false);
}

bool WriteWholeFile(const QString &path, const QByteArray &bytes) {
    WholeFile file(path);
    return file.Write(bytes) && file.Commit();
}

bool CopyWholeFile(const QString &source, const QString &destination) {
    constexpr qint64 blockSize = 65536;
    QFile from(source);
    if (IsSameFile(source, destination) || !from.open(QIODevice::ReadOnly))
        return false;
    WholeFile to(destination);
    for (QByteArray block = from.read(blockSize); !block.isEmpty(); block = from.read(blockSize)) {
        if (!to.Write(block))
            return false;
    }
    return from.error() == QFileDevice::NoError && to.Commit();
}

} // namespace lanterra
