#include "database/sqlite_file_check.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// The header of the file format, from "Database File Format" of the SQLite project:
//   0  16 bytes  "SQLite format 3" and a zero byte
//  16   2 bytes  page size, a power of two from 512 to 32768, or 1 for 65536
//  18   1 byte each  write and read version: 1 rollback journal, 2 write-ahead log
//  21   1 byte each  payload fractions, always 64, 32, 32
//  24   4 bytes  change counter
//  28   4 bytes  size in pages, valid if not 0 and the counter equals the next field
//  92   4 bytes  change counter for which the size is valid
// All numbers are big-endian.
constexpr qsizetype headerSize = 100;
constexpr qint64 largestFile = qint64{1} << 30; ///< bytes
constexpr QByteArrayView magic("SQLite format 3\0", 16);
constexpr QByteArrayView payloadFractions("\x40\x20\x20", 3);
constexpr char rollbackVersion = 1;

quint32 Number(const QByteArray &header, qsizetype offset) {
    return qFromBigEndian<quint32>(header.constData() + offset);
}

qint64 PageSize(const QByteArray &header) {
    const quint16 stored = qFromBigEndian<quint16>(header.constData() + 16);
    return stored == 1 ? 65536 : stored;
}

bool IsPageSize(qint64 size) { return size >= 512 && (size & (size - 1)) == 0; }

qint64 PageCount(const QByteArray &header) {
    return Number(header, 24) == Number(header, 92) ? Number(header, 28) : 0;
}

bool HasAllPages(const QByteArray &header, qint64 fileSize) {
    const qint64 pages = PageCount(header);
    const qint64 pageSize = PageSize(header);
    return pages > 0 ? fileSize >= pages * pageSize : fileSize % pageSize == 0;
}

QString HeaderRefusal(const QByteArray &header) {
    if (header.size() < headerSize || !header.startsWith(magic))
        return u"The file is no database."_s;
    if (!IsPageSize(PageSize(header)) || header.sliced(21, 3) != payloadFractions)
        return u"The header of the database is damaged."_s;
    if (header[18] != rollbackVersion || header[19] != rollbackVersion)
        return u"The database keeps its changes in a second file."_s;
    return {};
}

} // namespace

QString UnreadableRefusal() { return u"The file can't be read."_s; }

QString JournalOf(const QString &path) { return path + "-journal"_L1; }

bool HasJournal(const QString &path) { return QFileInfo(JournalOf(path)).size() > 0; }

QString SqliteFileRefusal(const QString &path) {
    // A pipe or device in its place would block the read.
    if (!QFileInfo(path).isFile())
        return u"There is no such file."_s;
    if (QFileInfo::exists(path + "-wal"_L1))
        return u"The database keeps its changes in a second file."_s;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return UnreadableRefusal();
    const QByteArray header = file.read(headerSize);
    if (QString refusal = HeaderRefusal(header); !refusal.isEmpty())
        return refusal;
    // All rows of a table are held in memory, and no project comes near this size.
    if (file.size() > largestFile)
        return u"The database file is too large."_s;
    if (!HasJournal(path) && !HasAllPages(header, file.size()))
        return u"The database file is cut off."_s;
    return {};
}

} // namespace lanterra
