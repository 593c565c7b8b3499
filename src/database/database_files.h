#pragma once

#include "database/database_file.h"

namespace lanterra {

/// The open database files of the process, so that all data controls on one file share its connection. A file
/// is closed with the last control that uses it.
class DatabaseFiles {
public:
    /// Every file that is opened must hold exactly the wanted tables; none given means that any will do.
    explicit DatabaseFiles(DatabaseSchema wantedTables = {}) : wanted(std::move(wantedTables)) {}

    /// The open file of this path, links followed; opens it if need be. A file that is open read-only becomes
    /// writable for a control that writes. One that was replaced since is opened anew; who holds
    /// the old one keeps it. Nothing if the file is missing, refused or in use; `failure` then says why.
    std::shared_ptr<DatabaseFile> Open(const QString &path, SqliteConnection::Mode mode, QString &failure);

private:
    std::shared_ptr<DatabaseFile> OpenAnew(const QString &path, SqliteConnection::Mode mode,
                                           QString &failure) const;

    DatabaseSchema wanted;
    std::map<QString, std::weak_ptr<DatabaseFile>> files; ///< by canonical path
};

} // namespace lanterra
