#include "modes/url_slots.h"

namespace lanterra {

UrlSlots::UrlSlots(ProjectRecord &projectRecord) : record(projectRecord) {
    connect(&record.HScroll1, &ScrollBar::ValueChanged, this, &UrlSlots::HScroll1_Change);
}

void UrlSlots::Show(int slot) {
    record.HScroll1.SetValue(slot);
    HScroll1_Change();
}

void UrlSlots::HScroll1_Change() {
    if (!record.MultiUrlMode())
        return;
    const int slot = record.HScroll1.Value();
    const int slotOfTexts = record.chkMultiSameDesc.Checked() ? 0 : slot;
    for (int column = 0; column < MultiUrlTable::columnCount; ++column) {
        const int from = column == MultiUrlTable::urlColumn ? slot : slotOfTexts;
        record.FieldOfColumn(column).box->SetText(record.multiUrlTable.Cell(from, column));
    }
}

void UrlSlots::HScroll1_LostFocus() {
    if (record.MultiUrlMode() && record.txtURL.Text().isEmpty())
        record.txtURL.SetText(record.multiUrlTable.Cell(record.HScroll1.Value(), MultiUrlTable::urlColumn));
}

} // namespace lanterra
