#include "window/statistics_pane.h"

#include "ui_statistics_pane.h"
#include "window/empty_hint.h"
#include "window/form_binder.h"
#include "window/icons.h"

#include <QHeaderView>

namespace lanterra {

namespace {

/// In pixels of 96 dpi, in the order of the fields; the columns without a width share what is left. All nine
/// fit into a window of 1000 pixels.
constexpr std::array<int, SessionGrid::fieldCount> columnWidths{164, 0, 0, 74, 90, 60, 52, 100, 100};

void SetUpHeader(QHeaderView &header) {
    for (int column = 0; column < SessionGrid::fieldCount; ++column) {
        const int width = columnWidths.at(static_cast<std::size_t>(column));
        if (width > 0)
            header.resizeSection(column, width);
        else
            header.setSectionResizeMode(column, QHeaderView::Stretch);
    }
    header.setHighlightSections(false);
    header.setDefaultAlignment(Qt::Alignment::fromInt(Qt::AlignCenter | Qt::TextWordWrap));
    header.setMinimumHeight(header.sizeHint().height() + header.fontMetrics().lineSpacing()); // for two lines
}

} // namespace

StatisticsPane::StatisticsPane(Program &program) : ui(std::make_unique<Ui::StatisticsPane>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(program.statistics);
    ApplyIcons(*this);
    ui->DBGrid1->verticalHeader()->hide();
    ui->DBGrid1->setWordWrap(false);
    SetUpHeader(*ui->DBGrid1->horizontalHeader());
    new EmptyHint(*ui->DBGrid1, tr("No run was made yet. Each run of this project adds a row."));
    connect(ui->Command10, &QPushButton::clicked, this, [&program] { program.statistics.Command10_Click(); });
}

StatisticsPane::~StatisticsPane() = default;

} // namespace lanterra
