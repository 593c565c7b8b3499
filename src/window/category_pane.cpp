#include "window/category_pane.h"

#include "ui_category_pane.h"
#include "window/empty_hint.h"
#include "window/entry_events.h"
#include "window/form_binder.h"
#include "window/icons.h"

namespace lanterra {

CategoryPane::CategoryPane(Program &program) : ui(std::make_unique<Ui::CategoryPane>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(program.project.record);
    FormBinder(*this).Bind(program.project.lists);
    ApplyIcons(*this);
    new EntryEvents(program.project.record, program.entry, *this);
    new EmptyHint(*ui->List2, tr("This project has no directories that want a category."));
    new EmptyHint(*ui->List3, tr("Choose a directory on the left to see its categories."));
    CategorySelection &selection = program.categorySelection;
    connect(&program.project.lists.List2, &ListBox::Clicked, this, [&selection] { selection.List2_Click(); });
    connect(&program.project.lists.List3, &ListBox::Clicked, this, [&selection] { selection.List3_Click(); });
    connect(ui->Command13, &QPushButton::clicked, this, [&selection] { selection.Command13_Click(); });
    connect(ui->txttrazim, &QLineEdit::returnPressed, this,
            [&selection] { selection.txttrazim_ReturnPressed(); });
}

CategoryPane::~CategoryPane() = default;

} // namespace lanterra
