#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <array>
#include <vector>

namespace lanterra {

class DataControl;

/// A read-only table of the sessions: one column a field of table "Stats", in stored order. Its tool tips
/// hold what a narrow cell can't show.
class SessionGrid : public QAbstractTableModel {
    Q_OBJECT

public:
    static constexpr int fieldCount = 9;

    /// Reads all rows of the control anew; it must be bound to table "Stats".
    void Rebind(DataControl &sessions);

    /// The names of the fields, as column headings.
    static const QStringList &Fields();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<std::array<QString, fieldCount>> rows;
};

} // namespace lanterra
