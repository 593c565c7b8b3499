#include "window/submit_pane.h"

#include "ui_submit_pane.h"
#include "window/empty_hint.h"
#include "window/entry_events.h"
#include "window/form_binder.h"
#include "window/icons.h"

#include <QHeaderView>

namespace lanterra {

namespace {

// Widths of the table's columns in pixels of 96 dpi.
constexpr int siteWidth = 170;
constexpr int answerWidth = 150;

} // namespace

SubmitPane::SubmitPane(Program &program) : ui(std::make_unique<Ui::SubmitPane>()) {
    ui->setupUi(this);
    ApplyIcons(*this);
    FormBinder(*this).Bind(program.submitForm);
    FormBinder(*this).Bind(program.project.record);
    new EntryEvents(program.project.record, program.entry, *this);
    JoinOutcomes(program.outcomes);
    JoinChannels(program.run);
    JoinButtons(program);
}

SubmitPane::~SubmitPane() = default;

void SubmitPane::JoinOutcomes(OutcomeTable &outcomes) {
    ui->outcomes->setModel(&outcomes);
    ui->outcomes->verticalHeader()->hide();
    QHeaderView &header = *ui->outcomes->horizontalHeader();
    header.setHighlightSections(false);
    header.setStretchLastSection(true);
    header.resizeSection(OutcomeTable::Site, siteWidth);
    header.resizeSection(OutcomeTable::Answer, answerWidth);
    new EmptyHint(*ui->outcomes,
                  tr("Press SUBMIT to send your page to the selected sites. Here you will see how "
                     "each of them answered."));
}

void SubmitPane::JoinChannels(SubmissionRun &run) {
    const std::array buttons{ui->kan1, ui->kan2, ui->kan3, ui->kan4, ui->kan5};
    for (std::size_t i = 0; i < buttons.size(); ++i)
        connect(buttons[i], &QPushButton::clicked, this,
                [&run, number = static_cast<int>(i) + 1] { run.kan_Click(number); });
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
