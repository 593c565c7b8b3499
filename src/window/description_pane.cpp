#include "window/description_pane.h"

#include "ui_description_pane.h"
#include "window/entry_events.h"
#include "window/form_binder.h"
#include "window/icons.h"

#include <QEvent>

using namespace Qt::StringLiterals;

namespace lanterra {

DescriptionPane::DescriptionPane(Program &program)
    : record(program.project.record), urlSlots(program.urlSlots),
      ui(std::make_unique<Ui::DescriptionPane>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(program.project.record);
    ApplyIcons(*this);
    new EntryEvents(program.project.record, program.entry, *this);
    ui->HScroll1->installEventFilter(this);
    connect(ui->SSCommand7, &QPushButton::clicked, this, [&program] { program.run.SSCommand7_Click(); });

    connect(&record.txtDesc, &TextBox::TextChanged, this, &DescriptionPane::ShowDescriptionLength);
    ShowDescriptionLength(record.txtDesc.Text());
    connect(&record.SSCommand7, &Button::MarkedChanged, this, &DescriptionPane::ShowUrlNumber);
    connect(&record.HScroll1, &ScrollBar::ValueChanged, this, &DescriptionPane::ShowUrlNumber);
    connect(&record.HScroll1, &ScrollBar::MaximumChanged, this, &DescriptionPane::ShowUrlNumber);
    ShowUrlNumber();
}

DescriptionPane::~DescriptionPane() = default;

bool DescriptionPane::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::FocusOut)
        urlSlots.HScroll1_LostFocus();
    return QWidget::eventFilter(watched, event);
}

void DescriptionPane::ShowDescriptionLength(const QString &text) {
    ui->lblDescLength->setText(tr("%1 of %2 characters").arg(text.size()).arg(ProjectRecord::fieldSize));
}

void DescriptionPane::ShowUrlNumber() {
    const bool several = record.MultiUrlMode();
    ui->HScroll1->setVisible(several);
    ui->lblUrlNumber->setText(
        several ? tr("URL %1 of %2").arg(record.HScroll1.Value() + 1).arg(record.HScroll1.Maximum() + 1)
                : tr("This project describes one page. Press \"multiple\" to enter more."));
}

} // namespace lanterra
