#include "modes/url_fields_check.h"

#include "support/numbers.h"

using namespace Qt::StringLiterals;

namespace lanterra {

bool UrlFieldsCheck::Pass() {
    if (record.chkMultiSameDesc.Checked())
        return true;
    int faulty = 0; // the last one with a gap is shown
    for (int slot = 0; slot <= LastSlot(); ++slot) {
        if (HasGap(slot))
            faulty = slot;
        queue.Yield();
    }
    if (faulty == 0)
        return true;
    dialogs.Show(
        {u" Please fill all text fields for each URL separately "_s, u"Error!"_s, BoxIcon::Critical});
    record.HScroll1.SetValue(faulty);
    frame.ShowPane(Pane::FrameDescription);
    return false;
}

// Slots that were emptied behind the last address, as equal ones leave them, lack nothing.
int UrlFieldsCheck::LastSlot() const {
    int slot = record.MultiUrlUpper;
    while (slot > 0 && IsBlank(record.multiUrlTable.Cell(slot, MultiUrlTable::urlColumn)))
        --slot;
    return slot;
}

bool UrlFieldsCheck::HasGap(int slot) const {
    for (int column = 0; column < MultiUrlTable::columnCount; ++column) {
        if (IsBlank(record.multiUrlTable.Cell(slot, column)))
            return true;
    }
    return false;
}

} // namespace lanterra
