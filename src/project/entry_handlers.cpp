#include "project/entry_handlers.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

void EntryHandlers::GotFocus(TextBox &box) const {
    if (&box != &record.txtLimit && &box != &record.txttrazim)
        box.SelectAll();
}

bool EntryHandlers::ReturnPressed(const TextBox &box) {
    TextBox *next = Next(box);
    if (!next)
        return false;
    if (next == &record.txtTitle)
        next->Select(0, next->SelLength());
    next->SetFocus();
    return true;
}

TextBox *EntryHandlers::Next(const TextBox &box) {
    const std::vector<TextBox *> page = {&record.txtURL,    &record.txtTitle,  &record.txtKey[0],
                                         &record.txtKey[1], &record.txtKey[2], &record.txtKey[3],
                                         &record.txtKey[4], &record.txtKey[5], &record.txtDesc};
    // The contact boxes are a ring: the last one leads to the first.
    const auto boxes = record.ContactBoxes();
    std::vector<TextBox *> contact(boxes.begin(), boxes.end());
    contact.push_back(boxes.front());
    for (const auto &order : {page, contact}) {
        const auto here = std::find(order.begin(), order.end(), &box);
        if (here != order.end() && here + 1 != order.end())
            return *(here + 1);
    }
    return nullptr;
}

void EntryHandlers::txtURL_LostFocus() {
    const QString url = record.txtURL.Text();
    if (!url.startsWith("http://"_L1) && !url.startsWith("https://"_L1))
        record.txtURL.SetText(u"http://"_s + url);
}

void EntryHandlers::txtTitle_LostFocus() {
    // From behind the first character, so that the start of a long title scrolls into view.
    record.txtTitle.Select(1, record.txtTitle.SelLength());
    WarnIfTooLong(record.txtTitle, u"Title tags should not exceed 255 characters "_s);
}

void EntryHandlers::txtDesc_LostFocus() {
    WarnIfTooLong(record.txtDesc, u"Descriptions should not exceed 255 characters "_s);
}

void EntryHandlers::WarnIfTooLong(const TextBox &box, const QString &warning) {
    if (box.Text().size() > ProjectRecord::fieldSize)
        dialogs.Show({warning, u"Error"_s, BoxIcon::Critical});
}

} // namespace lanterra
