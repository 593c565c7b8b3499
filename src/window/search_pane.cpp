#include "window/search_pane.h"

#include "ui_search_pane.h"
#include "window/empty_hint.h"
#include "window/entry_events.h"
#include "window/form_binder.h"
#include "window/icons.h"

namespace lanterra {

SearchPane::SearchPane(Program &program) : ui(std::make_unique<Ui::SearchPane>()) {
    ui->setupUi(this);
    ApplyIcons(*this);
    WebSearch &search = program.webSearch;
    FormBinder(*this).Bind(search);
    auto *const entries = new EntryEvents(program.project.record, program.entry, *this);
    entries->Watch(*ui->txtKeywords, search.txtKeywords);
    new EmptyHint(*ui->File1, tr("No answers are saved yet. Each search keeps its answer here as a page."));
    connect(ui->Command15, &QPushButton::clicked, this, [&search] { search.Command15_Click(); });
    connect(ui->cmdFind, &QPushButton::clicked, this, [&search] { search.cmdFind_Click(); });
    connect(ui->Command17, &QPushButton::clicked, this, [&search] { search.Command17_Click(); });
    connect(ui->cmdlink, &QPushButton::clicked, this, [&search] { search.cmdlink_Click(); });
    connect(ui->Command21, &QPushButton::clicked, this, [&search] { search.Command21_Click(); });
    connect(ui->Command24, &QPushButton::clicked, this, [&search] { search.Command24_Click(); });
    connect(ui->File1, &QListView::activated, this, [&search] { search.File1_DblClick(); });
    connect(ui->txtKeywords, &QLineEdit::returnPressed, this,
            [&search] { search.ReturnPressed(search.txtKeywords); });
    connect(ui->txtlink, &QLineEdit::returnPressed, this,
            [&search] { search.ReturnPressed(search.txtlink); });
}

SearchPane::~SearchPane() = default;

} // namespace lanterra
