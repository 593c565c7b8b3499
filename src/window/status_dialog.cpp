#include "window/status_dialog.h"

#include "ui_status_dialog.h"
#include "window/form_binder.h"

#include <chrono>

using namespace std::chrono_literals;

namespace lanterra {

namespace {
constexpr auto patience = 300ms; ///< a job that takes less is never seen
}

StatusDialog::StatusDialog(StatusForm &statusForm, QWidget *parent)
    : QDialog(parent), form(statusForm), ui(std::make_unique<Ui::StatusDialog>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(form);
    delay.setSingleShot(true);
    delay.setInterval(patience);
    connect(&delay, &QTimer::timeout, this, &QDialog::show);
    connect(&form, &StatusForm::VisibleChanged, this, [this](bool visible) {
        if (visible) {
            delay.start();
            return;
        }
        delay.stop();
        hide();
    });
    connect(&form, &StatusForm::ValueChanged, this, &StatusDialog::ShowProgress);
    connect(ui->SSCommand1, &QPushButton::clicked, this, &StatusDialog::reject);
}

StatusDialog::~StatusDialog() = default;

void StatusDialog::ShowProgress() {
    ui->ARProgressBar1->setMaximum(form.Maximum());
    ui->ARProgressBar1->setValue(form.Value());
}

} // namespace lanterra
