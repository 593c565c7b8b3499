#pragma once

#include "database/sqlite_connection.h"
#include "database/table_rows.h"
#include "support/file_names.h"

#include <map>
#include <memory>

namespace lanterra {

/// One open database file: the connection that all data controls on it share, the rows that were read, and
/// the walk that is under way. Each writing step changes the file and the rows together, or neither.
class DatabaseFile {
public:
    /// The state of a walk, shared with the objects that keep it open, since the file may be closed before
    /// them.
    struct Walk {
        int depth = 0;
        bool begun = false; ///< a transaction is open
        QString failure;    ///< once not empty, nothing more is written before the outermost walk has ended
    };
    using Changes = std::map<int, QVariant>; ///< new values by the place of their field

    /// `path` names an existing file that SqliteFileRefusal lets pass.
    DatabaseFile(QString path, SqliteConnection::Mode mode);
    /// Commits what is open.
    ~DatabaseFile();
    Q_DISABLE_COPY_MOVE(DatabaseFile)

    /// Reads the schema. False if it is refused, if the file is damaged, and with `wanted` not empty, also if
    /// the tables are others.
    bool ReadTables(const DatabaseSchema &wanted);
    /// Lets a file that was opened read-only be written. False if that fails; it is then read-only as before.
    bool MakeWritable();

    /// False once the path leads to another file, or to none: another program has replaced or removed it, and
    /// what is written here is lost.
    bool IsInPlace() const;

    /// Reads the rows of a table anew, for all who share them. Nothing on failure, with the old rows
    /// untouched.
    std::shared_ptr<TableRows> Load(const QString &table);

    /// The number of the row that was added behind the last one; nothing on failure.
    std::optional<qint64> Add(TableRows &table, const Changes &changes);
    bool Change(TableRows &table, qint64 id, const Changes &changes);
    bool Remove(TableRows &table, qint64 id);

    /// Everything written from here to the matching EndWalk is one transaction; walks nest.
    std::shared_ptr<Walk> BeginWalk();
    void EndWalk();
    /// Stores what the walk has written so far. If that fails, or if the file is not in place any more, all
    /// of it is undone and the walk has failed.
    bool CommitWalk();

    /// Why the last failing step failed, one sentence.
    const QString &Failure() const { return failure; }

private:
    bool PrepareToWrite(TableRows &table);
    QSqlQuery *Write(const QString &sql, const QVariantList &values);
    void UndoWalk(const QString &reason);
    bool Fail(const QString &reason);

    QString filePath;
    FileIdentity identity; ///< of the file that was opened
    std::unique_ptr<SqliteConnection> connection;
    bool writable = false;
    DatabaseSchema schema;
    std::map<QString, std::shared_ptr<TableRows>> tables; ///< those that were read, by name
    std::shared_ptr<Walk> walk;                           ///< none outside walks
    QString failure;
};

} // namespace lanterra
