#include "window/settings_dialog.h"

#include "ui_settings_dialog.h"
#include "window/form_binder.h"

namespace lanterra {

SettingsDialog::SettingsDialog(SettingsForm &form, QWidget *parent)
    : FormDialog(parent, [&form] { form.cmdCancel_Click(); }), ui(std::make_unique<Ui::SettingsDialog>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(form);
    Follow(form);
    connect(ui->chkProxy, &QCheckBox::clicked, this, [&form] { form.chkProxy_Click(); });
    connect(ui->cmdOK, &QPushButton::clicked, this, [&form] { form.cmdOK_Click(); });
    connect(ui->cmdCancel, &QPushButton::clicked, this, [&form] { form.cmdCancel_Click(); });
}

SettingsDialog::~SettingsDialog() = default;

} // namespace lanterra
