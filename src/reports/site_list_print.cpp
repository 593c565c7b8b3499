#include "reports/site_list_print.h"

namespace lanterra {

void SiteListPrint::mnuFilePrintPreview_Click() {
    QString text;
    for (int index = 0; index < lists.List1.ListCount(); ++index)
        text += lists.SiteName(index) + u'\n';
    printer.PrintText(text);
}

} // namespace lanterra
