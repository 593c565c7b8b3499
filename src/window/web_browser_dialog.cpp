#include "window/web_browser_dialog.h"

#include "ui_web_browser_dialog.h"
#include "window/form_binder.h"

namespace lanterra {

WebBrowserDialog::WebBrowserDialog(WebBrowserForm &form, QWidget *parent)
    : FormDialog(parent, [&form] { form.SSCommand2_Click(); }), ui(std::make_unique<Ui::WebBrowserDialog>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(form);
    Follow(form);
    connect(ui->Option1, &QRadioButton::clicked, this, [&form] { form.Option1_Click(); });
    connect(ui->Option2, &QRadioButton::clicked, this, [&form] { form.Option2_Click(); });
    connect(ui->SSCommand1, &QPushButton::clicked, this, [&form] { form.SSCommand1_Click(); });
    connect(ui->SSCommand2, &QPushButton::clicked, this, [&form] { form.SSCommand2_Click(); });
    connect(ui->SSCommand3, &QPushButton::clicked, this, [&form] { form.SSCommand3_Click(); });
}

WebBrowserDialog::~WebBrowserDialog() = default;

} // namespace lanterra
