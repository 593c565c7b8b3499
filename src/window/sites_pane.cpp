#include "window/sites_pane.h"

#include "ui_sites_pane.h"
#include "window/empty_hint.h"
#include "window/form_binder.h"
#include "window/icons.h"
#include "window/widget_forms.h"

namespace lanterra {

SitesPane::SitesPane(Program &program, WidgetForms &forms) : ui(std::make_unique<Ui::SitesPane>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(program.project.lists);
    ApplyIcons(*this);
    new EmptyHint(*ui->List1, tr("No project is open. Create one with File, New Project."));
    SiteSelection &selection = program.siteSelection;
    forms.SetMenuButton(PopupMenu::Engines, *ui->Command2);
    connect(ui->Command2, &QPushButton::clicked, this, [&forms] { forms.PopUp(PopupMenu::Engines); });
    connect(ui->Command3, &QPushButton::clicked, this, [&selection] { selection.Command3_Click(); });
    connect(ui->Command4, &QPushButton::clicked, this, [&selection] { selection.Command4_Click(); });
    connect(ui->Command6, &QPushButton::clicked, this, [&selection] { selection.Command6_Click(); });
}

SitesPane::~SitesPane() = default;

} // namespace lanterra
