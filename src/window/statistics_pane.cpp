#include "window/statistics_pane.h"

#include "ui_statistics_pane.h"
#include "window/empty_hint.h"
#include "window/form_binder.h"
#include "window/icons.h"

#include <QHeaderView>

namespace lanterra {

namespace {

/// In pixels of 96 dpi, in the order of the fields.
constexpr std::array<int, SessionGrid::fieldCount> columnWidths{170, 220, 180, 75, 95, 65, 60, 260, 260};

} // namespace

StatisticsPane::StatisticsPane(Program &program) : ui(std::make_unique<Ui::StatisticsPane>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(program.statistics);
    ApplyIcons(*this);
    ui->DBGrid1->verticalHeader()->hide();
    ui->DBGrid1->setWordWrap(false);
    for (int column = 0; column < SessionGrid::fieldCount; ++column)
        ui->DBGrid1->setColumnWidth(column, columnWidths.at(static_cast<std::size_t>(column)));
    ui->DBGrid1->horizontalHeader()->setHighlightSections(false);
    new EmptyHint(*ui->DBGrid1, tr("No run was made yet. Each run of this project adds a row."));
    connect(ui->Command10, &QPushButton::clicked, this, [&program] { program.statistics.Command10_Click(); });
}

StatisticsPane::~StatisticsPane() = default;

} // namespace lanterra
