#include "window/report_dialog.h"

#include "ui_report_dialog.h"
#include "window/form_binder.h"
#include "window/icons.h"

#include <QEvent>
#include <QFontDatabase>

namespace lanterra {

ReportDialog::ReportDialog(ReportForm &reportForm, QWidget *parent)
    : FormDialog(parent, [&reportForm] { reportForm.SetVisible(false); }), form(reportForm),
      ui(std::make_unique<Ui::ReportDialog>()) {
    ui->setupUi(this);
    ApplyIcons(*this);
    FormBinder(*this).Bind(form);
    Follow(form);
    ui->Text1->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    ui->cmdOk->setFocus(); // so that Return closes the form, and does not write into the text
    // Behind the event: the text is built with yields, and windows may come and go in them.
    connect(this, &ReportDialog::ActivationChanged, this, &ReportDialog::Rebuild, Qt::QueuedConnection);
    connect(ui->Command1, &QPushButton::clicked, this, [this] { form.Command1_Click(); });
    connect(ui->cmdprint, &QPushButton::clicked, this, [this] { form.cmdprint_Click(); });
    connect(ui->cmdOk, &QPushButton::clicked, this, [this] { form.cmdOk_Click(); });
}

ReportDialog::~ReportDialog() = default;

void ReportDialog::changeEvent(QEvent *event) {
    FormDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange)
        emit ActivationChanged();
}

void ReportDialog::Rebuild() {
    if (isActiveWindow())
        form.Form_Activate();
}

} // namespace lanterra
