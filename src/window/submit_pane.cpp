#include "window/submit_pane.h"

#include "ui_submit_pane.h"
#include "window/empty_hint.h"
#include "window/entry_events.h"
#include "window/form_binder.h"
#include "window/icons.h"
#include "window/widget_forms.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>

namespace lanterra {

namespace {

// Widths of the table's columns in pixels of 96 dpi.
constexpr int siteWidth = 160;
constexpr int resultWidth = 90;
constexpr int answerWidth = 150;
constexpr int sizeWidth = 70;

} // namespace

SubmitPane::SubmitPane(Program &program, WidgetForms &forms) : ui(std::make_unique<Ui::SubmitPane>()) {
    ui->setupUi(this);
    ApplyIcons(*this);
    FormBinder(*this).Bind(program.submitForm);
    FormBinder(*this).Bind(program.project.record);
    new EntryEvents(program.project.record, program.entry, *this);
    JoinOutcomes(program.outcomes);
    JoinChannels(program.run, forms);
    JoinButtons(program);
    forms.SetMenuButton(PopupMenu::Submit, *ui->cmdStart);
    forms.SetMenuButton(PopupMenu::Cancel2, *ui->cmdCancel);
    ui->cmdStart->setFocus(); // and not channel 1, which stands before it
}

SubmitPane::~SubmitPane() = default;

void SubmitPane::JoinOutcomes(OutcomeTable &outcomes) {
    // A click on a heading brings the failed sites, say, together; until then they stand as in the list.
    auto *const sorted = new QSortFilterProxyModel(this);
    sorted->setSourceModel(&outcomes);
    ui->outcomes->setModel(sorted);
    ui->outcomes->sortByColumn(-1, Qt::AscendingOrder);
    ui->outcomes->setSortingEnabled(true);
    ui->outcomes->setWordWrap(false);
    ui->outcomes->verticalHeader()->hide();
    QHeaderView &header = *ui->outcomes->horizontalHeader();
    header.setHighlightSections(false);
    header.setStretchLastSection(true);
    header.resizeSection(OutcomeTable::Site, siteWidth);
    header.resizeSection(OutcomeTable::Result, resultWidth);
    header.resizeSection(OutcomeTable::Answer, answerWidth);
    header.resizeSection(OutcomeTable::Size, sizeWidth);
    new EmptyHint(*ui->outcomes,
                  tr("Press SUBMIT to send your page to the selected sites. Here you will see how "
                     "each of them answered."));
}

void SubmitPane::JoinChannels(SubmissionRun &run, WidgetForms &forms) {
    const std::array<std::pair<QPushButton *, PopupMenu>, channelCount> channels{
        {{ui->kan1, PopupMenu::Status},
         {ui->kan2, PopupMenu::Status2},
         {ui->kan3, PopupMenu::Status3},
         {ui->kan4, PopupMenu::Status4},
         {ui->kan5, PopupMenu::Status5}}};
    int number = 1;
    for (const auto &[button, menu] : channels) {
        forms.SetMenuButton(menu, *button);
        connect(button, &QPushButton::clicked, this, [&run, number] { run.kan_Click(number); });
        ++number;
    }
}

void SubmitPane::JoinButtons(Program &program) {
    SubmissionRun &run = program.run;
    connect(ui->cmdStart, &QPushButton::clicked, this, [&run] { run.cmdStart_Click(); });
    connect(ui->Command1, &QPushButton::clicked, this, [&run] { run.Command1_Click(); });
    connect(ui->cmdCancel, &QPushButton::clicked, this, [&run] { run.cmdCancel_Click(); });
    connect(ui->Command16, &QPushButton::clicked, this, [&program] { program.frmMain.Command16_Click(); });
    connect(ui->Command18, &QPushButton::clicked, this,
            [&program] { program.reportDocuments.Command18_Click(program.run.RunActive()); });
}

} // namespace lanterra
