#pragma once

#include <QString>
#include <QVariant>
#include <map>
#include <memory>
#include <optional>

namespace lanterra {

class DatabaseFile;
class DatabaseFiles;
class TableRows;

/// A bound data object: a database file, a record source (the name of a table) and the row set that Refresh
/// made of it, in stored order, with one current row. All data controls on one file share its connection and
/// its rows, so one sees at once what another has committed; changes by other programs show at the next
/// Refresh. A current row that another control has deleted reads as empty, and MoveNext goes on behind its
/// place.
///
/// Nothing here shows a message or throws. A step that fails returns false, leaves an empty value, and says
/// why in Failure().
class DataControl {
public:
    enum class Access { ReadOnly, ReadWrite };

    /// `databaseFiles` must outlive the control. A ReadOnly control refuses every writing step and opens a
    /// file that no other control has open in SQLite's read-only mode.
    DataControl(DatabaseFiles &databaseFiles, Access accessMode);
    ~DataControl();
    Q_DISABLE_COPY_MOVE(DataControl)

    /// Binds the control to a file; the row set is empty until the next Refresh. An empty name closes the
    /// binding. The path is made absolute.
    void SetDatabaseName(const QString &path);
    const QString &DatabaseName() const;

    /// The row set is empty until the next Refresh. The present name changes nothing.
    void SetRecordSource(const QString &table);
    const QString &RecordSource() const;

    /// Reads the row set anew and stands on its first row, in a file that has taken the place of the old one
    /// too. False if the file is missing, is no sound database (checked before SQLite sees it), is locked for
    /// more than 200 ms, or has no such table; the row set is then empty and no file was created or changed.
    bool Refresh();

    /// Releases the file, so that it can be copied once no other control uses it. Uncommitted work of a
    /// running walk is committed first. The name and the record source stay; the row set is empty until the
    /// next Refresh.
    void Close();

    /// Whether a row set stands: the last Refresh worked, and the file wasn't closed or rebound since.
    bool IsOpen() const { return table != nullptr; }

    /// False once another program has replaced or removed the file. What is written then fails; a Close and a
    /// Refresh lead to the new file.
    bool IsInPlace() const;

    int RowCount() const;
    /// Stand on a row. False, with no current row, if there is none.
    bool MoveFirst();
    bool MoveNext();
    bool MoveLast();
    /// Stands on row `row`, counted from 0.
    bool MoveTo(int row);
    bool HasRow() const;

    /// The field of the current row; empty (0, false) for NULL, for an unknown field and without a row. Names
    /// compare exactly. A number in any other column type reads as its text and the other way round; a number
    /// is rounded, half to even, and clipped to the range of int. Between Edit or AddNew and Update this is
    /// the row that is being changed, with what was set so far.
    QString Text(const QString &field) const;
    int Number(const QString &field) const;
    /// Any number but 0 is true.
    bool Boolean(const QString &field) const;
    bool IsNull(const QString &field) const;

    /// Begin to change the current row, or a new row with only NULL fields, which becomes the last one.
    bool Edit();
    bool AddNew();
    /// Sets a field of the row that is being changed. A text longer than the field's declared size fails in
    /// that one field and leaves the old value. Sizes count UTF-16 units and come from the table's
    /// declaration, "VARCHAR(255)".
    bool SetText(const QString &field, const QString &text);
    bool SetNumber(const QString &field, int number);
    /// Stored as -1 and 0.
    bool SetBoolean(const QString &field, bool value);
    /// Writes the changed row. A row left without Update is dropped by the next move, Edit, AddNew or
    /// Refresh. Afterwards the control stands on the written row.
    bool Update();
    /// Deletes the current row. There is no current row afterwards until the next move.
    bool Delete();

    /// Why the last failing step failed, one sentence; empty if none has failed since the last Refresh.
    const QString &Failure() const;

private:
    friend class WalkTransaction;

    struct Edited {
        std::optional<qint64> row; ///< none for a new one
        std::map<int, QVariant> changes;
    };

    bool Open();
    void Release();
    bool Stand(std::optional<qint64> row);
    bool BeginEdit(std::optional<qint64> row);
    bool Set(const QString &field, const QVariant &value);
    QVariant Value(const QString &field) const;
    bool Fail(const QString &reason);

    DatabaseFiles &files;
    Access access;
    QString databaseName;
    QString recordSource;
    std::shared_ptr<DatabaseFile> file;
    std::shared_ptr<TableRows> table; ///< none before a Refresh has succeeded
    std::optional<qint64> current;    ///< number of the row that the control stands on
    std::optional<Edited> edited;     ///< between Edit or AddNew and Update
    QString failure;
};

} // namespace lanterra
