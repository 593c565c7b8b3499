#include "window/welcome_dialog.h"

#include "ui_welcome_dialog.h"
#include "window/form_binder.h"
#include "window/icons.h"

namespace lanterra {

namespace {
constexpr QSize logoSize(72, 72);
}

WelcomeDialog::WelcomeDialog(WelcomeForm &form, QWidget *parent)
    : FormDialog(parent, [&form] { form.SetVisible(false); }), ui(std::make_unique<Ui::WelcomeDialog>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(form);
    Follow(form);
    ui->Picture1->setIcon(ThemedIcon(QStringLiteral("lanterra")));
    ui->Picture1->setIconSize(logoSize);
    ui->Command1->setFocus();
    connect(ui->Picture1, &QToolButton::clicked, this, [&form] { form.Picture1_Click(); });
    connect(ui->SSCommand1, &QPushButton::clicked, this, [&form] { form.SSCommand1_Click(); });
    connect(ui->Command1, &QPushButton::clicked, this, [&form] { form.Command1_Click(); });
}

WelcomeDialog::~WelcomeDialog() = default;

} // namespace lanterra
