#pragma once

#include "project/site_lists.h"
#include "reports/run_result.h"

#include <QAbstractTableModel>
#include <vector>

namespace lanterra {

/// How each site that takes part in the run fares, in List1 order: what the site answered and why it failed.
/// Read-only; it follows the run and keeps the last one until the next begins.
class OutcomeTable : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Site, Result, Answer, Size, Reason };
    static constexpr int fieldCount = Reason + 1;

    /// Both must outlive this.
    OutcomeTable(const RunResult &runResult, const SiteLists &siteLists);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    /// The texts of a row, also as tool tips. A size is a number, and no value while nothing has come.
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row {
        int listIndex;
        QString name; ///< as it stood in the run: another project may be opened behind it
    };
    void Clear();
    void Take(int listIndex);
    QVariant Cell(const Row &row, int column) const;

    const RunResult &result;
    const SiteLists &lists;
    std::vector<Row> rows; ///< by listIndex
};

} // namespace lanterra
