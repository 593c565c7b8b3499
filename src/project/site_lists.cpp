#include "project/site_lists.h"

#include "support/text_file.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

void FillFromResource(ListBox &list, const QString &resource) {
    list.SetItems(ReadFileText(resource).split(u'\n', Qt::SkipEmptyParts));
    list.SetAllSelected(true);
}

} // namespace

SiteLists::SiteLists() {
    AddToForm(*this, List1, u"List1"_s);
    AddToForm(*this, List2, u"List2"_s);
    AddToForm(*this, List3, u"List3"_s);
    AddToForm(*this, List5, u"List5"_s);
    AddToForm(*this, lstTopEngines, u"lstTopEngines"_s);
    AddToForm(*this, lblSelected, u"lblSelected"_s);
    FillFromResource(List5, u":/project/semi_automated_sites.txt"_s);
    FillFromResource(lstTopEngines, u":/project/top_engines.txt"_s);
    for (const ListBox *list : {&List1, &List5, &lstTopEngines})
        connect(list, &ListBox::MarksChanged, this, &SiteLists::UpdateSelectedCount);
    UpdateSelectedCount();
}

void SiteLists::UpdateSelectedCount() {
    const int selected = List1.SelCount() + List5.SelCount() + lstTopEngines.SelCount();
    const int entries = List1.ListCount() + List5.ListCount() + lstTopEngines.ListCount();
    lblSelected.SetCaption(u"Selected %1/%2"_s.arg(selected).arg(entries));
}

} // namespace lanterra
