#include "window/other_data_pane.h"

#include "ui_other_data_pane.h"
#include "window/entry_events.h"
#include "window/form_binder.h"

namespace lanterra {

OtherDataPane::OtherDataPane(Program &program) : ui(std::make_unique<Ui::OtherDataPane>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(program.project.record);
    new EntryEvents(program.project.record, program.entry, *this);
}

OtherDataPane::~OtherDataPane() = default;

} // namespace lanterra
