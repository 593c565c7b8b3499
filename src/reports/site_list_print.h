#pragma once

#include "ports/printer.h"
#include "project/site_lists.h"

namespace lanterra {

/// Prints the list of sites.
class SiteListPrint {
public:
    /// Both must outlive this.
    SiteListPrint(const SiteLists &siteLists, Printer &defaultPrinter)
        : lists(siteLists), printer(defaultPrinter) {}

    /// "Print List of Current Engines": prints the name of every automated site, selected or not, at once and
    /// without a preview.
    void mnuFilePrintPreview_Click();

private:
    const SiteLists &lists;
    Printer &printer;
};

} // namespace lanterra
