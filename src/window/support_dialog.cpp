#include "window/support_dialog.h"

#include "ui_support_dialog.h"
#include "window/form_binder.h"

namespace lanterra {

SupportDialog::SupportDialog(SupportForm &form, QWidget *parent)
    : FormDialog(parent, [&form] { form.SetVisible(false); }), ui(std::make_unique<Ui::SupportDialog>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(form);
    Follow(form);
    connect(ui->Command1, &QPushButton::clicked, this, [&form] { form.Command1_Click(); });
    connect(ui->Command2, &QPushButton::clicked, this, [&form] { form.Command2_Click(); });
}

SupportDialog::~SupportDialog() = default;

} // namespace lanterra
