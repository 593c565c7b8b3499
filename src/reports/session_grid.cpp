#include "reports/session_grid.h"

#include "database/data_control.h"
#include "support/tool_tip.h"

using namespace Qt::StringLiterals;

namespace lanterra {

const QStringList &SessionGrid::Fields() {
    static const QStringList fields{u"Date"_s,
                                    u"PageUrl"_s,
                                    u"Email"_s,
                                    u"Selected"_s,
                                    u"Successful"_s,
                                    u"Failed"_s,
                                    u"Time"_s,
                                    u"Successful Submissions"_s,
                                    u"Failed Submissions"_s};
    return fields;
}

void SessionGrid::Rebind(DataControl &sessions) {
    beginResetModel();
    rows.clear();
    for (bool here = sessions.MoveFirst(); here; here = sessions.MoveNext()) {
        auto &row = rows.emplace_back();
        for (std::size_t column = 0; column < row.size(); ++column)
            row[column] = sessions.Text(Fields().at(static_cast<qsizetype>(column)));
    }
    endResetModel();
}

int SessionGrid::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int SessionGrid::columnCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : fieldCount; }

QVariant SessionGrid::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const QString &text =
        rows.at(static_cast<std::size_t>(index.row())).at(static_cast<std::size_t>(index.column()));
    return role == Qt::DisplayRole ? text : ToolTipOf(text.trimmed().replace("\r\n"_L1, ", "_L1));
}

QVariant SessionGrid::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return Fields().value(section);
}

} // namespace lanterra
