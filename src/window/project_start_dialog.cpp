#include "window/project_start_dialog.h"

#include "ui_project_start_dialog.h"
#include "window/form_binder.h"

namespace lanterra {

ProjectStartDialog::ProjectStartDialog(ProjectDialog &form, QWidget *parent)
    : FormDialog(parent, [&form] { form.Close(); }), ui(std::make_unique<Ui::ProjectStartDialog>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(form);
    Follow(form);
    connect(ui->cmdOK, &QPushButton::clicked, this, [&form] { form.cmdOK_Click(); });
    connect(ui->List1, &QListView::doubleClicked, this, [&form] { form.List1_DblClick(); });
    ui->cmdOK->setFocus(); // so that what Return presses is seen at once
    // Who picks a file wants to open it.
    connect(&form.List1, &ListBox::Clicked, ui->Option2, &QRadioButton::click);
}

ProjectStartDialog::~ProjectStartDialog() = default;

} // namespace lanterra
