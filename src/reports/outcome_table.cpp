#include "reports/outcome_table.h"

#include "support/tool_tip.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// A site without a verdict is waited for until there is a reason for that.
QString ResultWord(const SiteOutcome &outcome) {
    switch (outcome.verdict) {
    case Verdict::Successful:
        return u"Successful"_s;
    case Verdict::Failed:
        return u"Failed"_s;
    case Verdict::None:
    case Verdict::NotSelected:
        break;
    }
    return outcome.reason.isEmpty() ? u"Waiting"_s : u"No verdict"_s;
}

} // namespace

OutcomeTable::OutcomeTable(const RunResult &runResult, const SiteLists &siteLists)
    : result(runResult), lists(siteLists) {
    connect(&result, &RunResult::Begun, this, &OutcomeTable::Clear);
    connect(&result, &RunResult::OutcomeChanged, this, &OutcomeTable::Take);
}

void OutcomeTable::Clear() {
    beginResetModel();
    rows.clear();
    endResetModel();
}

void OutcomeTable::Take(int listIndex) {
    const auto place = std::lower_bound(rows.begin(), rows.end(), listIndex,
                                        [](const Row &row, int wanted) { return row.listIndex < wanted; });
    const int row = static_cast<int>(place - rows.begin());
    if (place != rows.end() && place->listIndex == listIndex) {
        emit dataChanged(index(row, Result), index(row, Reason));
        return;
    }
    beginInsertRows({}, row, row);
    rows.insert(place, {listIndex, lists.SiteName(listIndex)});
    endInsertRows();
}

int OutcomeTable::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int OutcomeTable::columnCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : fieldCount; }

QVariant OutcomeTable::data(const QModelIndex &index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole && index.column() == Size)
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const QVariant cell = Cell(rows.at(static_cast<std::size_t>(index.row())), index.column());
    return role == Qt::DisplayRole ? cell : ToolTipOf(cell.toString());
}

QVariant OutcomeTable::Cell(const Row &row, int column) const {
    const SiteOutcome &outcome = result.outcomes.at(static_cast<std::size_t>(row.listIndex));
    switch (column) {
    case Site:
        return row.name;
    case Result:
        return ResultWord(outcome);
    case Answer:
        return outcome.statusText;
    case Size:
        return outcome.status || outcome.bytes > 0 ? QVariant(outcome.bytes) : QVariant();
    default:
        return outcome.reason;
    }
}

QVariant OutcomeTable::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    const QStringList headings{u"Site"_s, u"Result"_s, u"Answer"_s, u"Size"_s, u"Reason"_s};
    return headings.value(section);
}

} // namespace lanterra
