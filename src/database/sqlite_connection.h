#pragma once

#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <unordered_map>

namespace lanterra {

/// One connection to a SQLite file, with its prepared statements, closed with this object. Commits are
/// flushed to the disk, and what a stored schema says is not trusted to call functions.
class SqliteConnection {
public:
    enum class Mode {
        ReadOnly,
        ReadWrite, ///< an existing file; a write-protected one opens, and its writes fail
        Scratch    ///< a file of our own that nobody else knows yet: may be empty, and is not flushed
    };

    /// `path` is absolute. Waits at most 80 ms for a lock, in any step.
    SqliteConnection(const QString &path, Mode mode);
    ~SqliteConnection();
    Q_DISABLE_COPY_MOVE(SqliteConnection)

    /// An empty database in memory.
    SqliteConnection();

    /// Runs a statement, with one value for each question mark, and returns it to be read, or nothing if it
    /// failed. The statement belongs to the connection and is valid until the same text is run again. One
    /// that returns rows must be read to its end or finished, since it holds a lock on the file.
    QSqlQuery *Execute(const QString &sql, const QVariantList &values = {});

    /// Runs a statement without rows.
    bool Run(const QString &sql, const QVariantList &values = {}) { return Execute(sql, values) != nullptr; }

    /// Reads on. False at the end of the rows and on a failure, which Failure() then tells.
    bool Next(QSqlQuery &query);

    /// Why the last step failed, one sentence; empty after one that did not.
    const QString &Failure() const { return failure; }

private:
    void Open(const QString &name);
    QSqlQuery *Prepared(const QString &sql);
    bool Accept(const QSqlError &error);

    QString connectionName;
    std::unordered_map<QString, QSqlQuery> statements; ///< by their text
    QString failure;
};

/// Why the database is not sound, or can't be read now, one sentence; empty if every page and row can be read
/// and belongs to one place only. Damage within a value can't be seen.
QString IntegrityRefusal(SqliteConnection &connection);

/// The name in double quotes, to stand for a table or field in a statement.
QString QuotedName(const QString &name);

} // namespace lanterra
