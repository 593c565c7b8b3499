#include "database/data_control.h"

#include "database/database_files.h"
#include "support/numbers.h"

#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

double NumberOf(const QVariant &value) {
    if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::LongLong ||
        value.typeId() == QMetaType::Int)
        return value.toDouble();
    return LeadingNumber(value.toString());
}

} // namespace

DataControl::DataControl(DatabaseFiles &databaseFiles, Access accessMode)
    : files(databaseFiles), access(accessMode) {}

DataControl::~DataControl() { Release(); }

void DataControl::SetDatabaseName(const QString &path) {
    Release();
    databaseName = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
}

const QString &DataControl::DatabaseName() const { return databaseName; }

void DataControl::SetRecordSource(const QString &tableName) {
    if (tableName == recordSource)
        return;
    recordSource = tableName;
    Stand(std::nullopt);
    table.reset();
}

const QString &DataControl::RecordSource() const { return recordSource; }

bool DataControl::Refresh() {
    failure.clear();
    Stand(std::nullopt);
    table.reset();
    if (!Open())
        return false;
    table = file->Load(recordSource);
    if (!table)
        return Fail(file->Failure());
    MoveFirst();
    return true;
}

bool DataControl::Open() {
    if (databaseName.isEmpty())
        return Fail(u"No database is bound."_s);
    if (!QFileInfo::exists(databaseName))
        return Fail(u"There is no such file."_s);
    const auto mode =
        access == Access::ReadOnly ? SqliteConnection::Mode::ReadOnly : SqliteConnection::Mode::ReadWrite;
    if (!IsInPlace())
        Release();
    if (!file)
        file = files.Open(databaseName, mode, failure);
    return file != nullptr;
}

bool DataControl::IsInPlace() const { return !file || file->IsInPlace(); }

void DataControl::Close() { Release(); }

void DataControl::Release() {
    if (file && !file->CommitWalk())
        Fail(file->Failure());
    Stand(std::nullopt);
    table.reset();
    file.reset();
}

int DataControl::RowCount() const { return table ? table->Count() : 0; }

bool DataControl::MoveFirst() { return MoveTo(0); }

bool DataControl::MoveLast() { return MoveTo(RowCount() - 1); }

bool DataControl::MoveTo(int row) {
    const TableRows::Row *found = table ? table->At(row) : nullptr;
    return Stand(found ? std::optional(found->id) : std::nullopt);
}

bool DataControl::MoveNext() {
    const TableRows::Row *found = table && current ? table->Behind(*current) : nullptr;
    return Stand(found ? std::optional(found->id) : std::nullopt);
}

bool DataControl::Stand(std::optional<qint64> row) {
    edited.reset();
    current = row;
    return row.has_value();
}

bool DataControl::HasRow() const { return table && current && table->Find(*current); }

QVariant DataControl::Value(const QString &field) const {
    const int place = table ? table->Schema().IndexOf(field) : -1;
    if (place < 0)
        return {};
    if (edited) {
        if (const auto change = edited->changes.find(place); change != edited->changes.cend())
            return change->second;
    }
    const std::optional<qint64> row = edited ? edited->row : current;
    const TableRows::Row *stored = row ? table->Find(*row) : nullptr;
    return stored ? stored->values[place] : QVariant();
}

QString DataControl::Text(const QString &field) const { return Value(field).toString(); }

int DataControl::Number(const QString &field) const {
    using Limits = std::numeric_limits<int>;
    const double number = NumberOf(Value(field));
    if (std::isnan(number))
        return 0;
    return static_cast<int>(std::nearbyint(std::clamp<double>(number, Limits::min(), Limits::max())));
}

bool DataControl::Boolean(const QString &field) const { return NumberOf(Value(field)) != 0; }

bool DataControl::IsNull(const QString &field) const { return !Value(field).isValid(); }

bool DataControl::Edit() {
    if (!HasRow())
        return Fail(u"There is no current row."_s);
    return BeginEdit(current);
}

bool DataControl::AddNew() {
    if (!table)
        return Fail(u"No table is open."_s);
    return BeginEdit(std::nullopt);
}

bool DataControl::BeginEdit(std::optional<qint64> row) {
    edited.reset();
    if (access == Access::ReadOnly)
        return Fail(u"The database is open for reading only."_s);
    edited = Edited{row, {}};
    return true;
}

bool DataControl::SetText(const QString &field, const QString &text) {
    const int place = table ? table->Schema().IndexOf(field) : -1;
    if (place >= 0 && text.size() > table->Schema().fields[place].MaximumLength())
        return Fail(u"The text is too long for the field \"%1\"."_s.arg(field));
    // A null QString would be stored as NULL.
    return Set(field, text.isNull() ? u""_s : text);
}

bool DataControl::SetNumber(const QString &field, int number) { return Set(field, number); }

bool DataControl::SetBoolean(const QString &field, bool value) { return Set(field, value ? -1 : 0); }

bool DataControl::Set(const QString &field, const QVariant &value) {
    if (!edited)
        return Fail(u"No row is being changed."_s);
    const int place = table->Schema().IndexOf(field);
    if (place < 0)
        return Fail(u"The table has no field \"%1\"."_s.arg(field));
    edited->changes[place] = value;
    return true;
}

bool DataControl::Update() {
    if (!edited)
        return Fail(u"No row is being changed."_s);
    const Edited row = *edited;
    const std::optional<qint64> before = current;
    if (!row.row)
        Stand(file->Add(*table, row.changes));
    else
        Stand(file->Change(*table, *row.row, row.changes) ? row.row : std::nullopt);
    if (current)
        return true;
    current = before;
    return Fail(file->Failure());
}

bool DataControl::Delete() {
    if (!HasRow() || access == Access::ReadOnly)
        return Fail(HasRow() ? u"The database is open for reading only."_s : u"There is no current row."_s);
    if (!file->Remove(*table, *current))
        return Fail(file->Failure());
    Stand(std::nullopt);
    return true;
}

const QString &DataControl::Failure() const { return failure; }

bool DataControl::Fail(const QString &reason) {
    failure = reason;
    return false;
}

} // namespace lanterra
