#include "database/database_files.h"

#include "database/sqlite_file_check.h"

#include <QFileInfo>

namespace lanterra {

std::shared_ptr<DatabaseFile> DatabaseFiles::Open(const QString &path, SqliteConnection::Mode mode,
                                                  QString &failure) {
    std::erase_if(files, [](const auto &entry) { return entry.second.expired(); });
    const QString canonical = QFileInfo(path).canonicalFilePath();
    std::shared_ptr<DatabaseFile> file = files[canonical].lock();
    if (!file || !file->IsInPlace()) {
        file = OpenAnew(canonical, mode, failure);
    } else if (mode != SqliteConnection::Mode::ReadOnly && !file->MakeWritable()) {
        failure = file->Failure();
        return nullptr;
    }
    files[canonical] = file;
    return file;
}

std::shared_ptr<DatabaseFile> DatabaseFiles::OpenAnew(const QString &path, SqliteConnection::Mode mode,
                                                      QString &failure) const {
    failure = SqliteFileRefusal(path);
    if (!failure.isEmpty())
        return nullptr;
    auto file = std::make_shared<DatabaseFile>(path, mode);
    if (file->ReadTables(wanted))
        return file;
    failure = file->Failure();
    return nullptr;
}

} // namespace lanterra
