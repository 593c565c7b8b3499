#include "window/statistics_pane.h"

#include "ui_statistics_pane.h"
#include "window/empty_hint.h"
#include "window/form_binder.h"
#include "window/icons.h"

#include <QHeaderView>

namespace lanterra {

StatisticsPane::StatisticsPane(Program &program) : ui(std::make_unique<Ui::StatisticsPane>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(program.statistics);
    ApplyIcons(*this);
    ui->DBGrid1->verticalHeader()->hide();
    ui->DBGrid1->horizontalHeader()->setDefaultSectionSize(130);
    ui->DBGrid1->horizontalHeader()->setHighlightSections(false);
    new EmptyHint(*ui->DBGrid1, tr("No run was made yet. Each run of this project adds a row."));
    connect(ui->Command10, &QPushButton::clicked, this, [&program] { program.statistics.Command10_Click(); });
}

StatisticsPane::~StatisticsPane() = default;

} // namespace lanterra
