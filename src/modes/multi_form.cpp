#include "modes/multi_form.h"

#include "support/numbers.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString scheme = u"http://"_s;
const QString secureScheme = u"https://"_s;
constexpr qsizetype shortestSlotUrl = 11;
constexpr qsizetype shortestSingleUrl = 10;

bool HoldsScheme(const QString &text) {
    return text.contains(scheme, Qt::CaseInsensitive) || text.contains(secureScheme, Qt::CaseInsensitive);
}

} // namespace

MultiForm::MultiForm(ProjectRecord &projectRecord, SubmissionRun &submissionRun, Dialogs &inputBoxes)
    : record(projectRecord), run(submissionRun), dialogs(inputBoxes) {
    AddToForm(*this, ListedURLs, u"ListedURLs"_s);
    AddToForm(*this, cmdOK, u"cmdOK"_s);
    AddToForm(*this, cmdCancel, u"cmdCancel"_s);
    SetVisible(false);
}

void MultiForm::Activate() {
    if (Visible())
        return;
    FillList();
    SetVisible(true);
}

void MultiForm::FillList() {
    ListedURLs.Clear();
    const QString single = record.txtURL.Text();
    if (!record.MultiUrlMode() && HoldsScheme(single) && single.size() >= shortestSingleUrl)
        ListedURLs.AddItem(single);
    for (int slot = 0; record.MultiUrlMode() && slot < MultiUrlTable::slotCount; ++slot) {
        const QString url = record.multiUrlTable.Cell(slot, MultiUrlTable::urlColumn);
        if (url.size() >= shortestSlotUrl)
            ListedURLs.AddItem(url);
    }
}

void MultiForm::cmdOK_Click() {
    record.multiUrlTable.EraseUrls();
    record.MultiUrlUpper = ListedURLs.ListCount() - 1;
    run.urlCounter = 0;
    if (ListedURLs.ListCount() < 2)
        TakeSingle();
    else
        TakeSeveral();
    SetVisible(false);
}

// The mode ends before the scroll bar goes back, which would fill the box from the emptied table otherwise.
void MultiForm::TakeSingle() {
    record.SetMultiUrlMode(false);
    record.HScroll1.SetValue(0);
    record.chkMultiSameDesc.SetEnabled(false);
}

void MultiForm::TakeSeveral() {
    record.SetMultiUrlMode(true);
    record.chkMultiSameDesc.SetEnabled(true);
    StoreLines();
    record.HScroll1.SetValue(0);
    record.txtURL.SetText(record.multiUrlTable.Cell(0, MultiUrlTable::urlColumn));
    record.HScroll1.SetMaximum(ListedURLs.ListCount() - 1);
}

// Goes on to the number of lines that were typed, though the list gets shorter: the slots behind are empty.
void MultiForm::StoreLines() {
    int slot = 0;
    while (slot <= record.MultiUrlUpper) {
        const QString line = ListedURLs.Item(slot);
        if (Occurrences(line) > 1)
            ListedURLs.RemoveItem(slot);
        else
            record.multiUrlTable.SetCell(slot++, MultiUrlTable::urlColumn, line);
    }
}

int MultiForm::Occurrences(const QString &line) const {
    int count = 0;
    for (int i = 0; i < ListedURLs.ListCount(); ++i)
        count += ListedURLs.Item(i).toUpper() == line.toUpper() ? 1 : 0;
    return count;
}

void MultiForm::AddUrl() {
    const QString typed = dialogs.Ask({u"Type new URL"_s, u"Zephyrine Lanterra"_s, scheme});
    if (IsBlank(typed) || typed == scheme)
        return;
    ListedURLs.AddItem(HoldsScheme(typed) ? typed : scheme + typed);
}

void MultiForm::EditUrl() {
    const int line = ListedURLs.ListIndex();
    if (line == ListBoks::noLine)
        return;
    const QString typed = dialogs.Ask({u"Edit URL"_s, u"Zephyrine Lanterra"_s, ListedURLs.Text()});
    if (!IsBlank(typed))
        ListedURLs.SetItem(line, typed);
}

void MultiForm::RemoveUrl() { ListedURLs.RemoveItem(ListedURLs.ListIndex()); }

} // namespace lanterra
