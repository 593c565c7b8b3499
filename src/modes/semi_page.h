#pragma once

#include "modes/page_template.h"
#include "modes/project_page.h"
#include "settings/hosts.h"
#include "submission/submission_run.h"

namespace lanterra {

/// Writes semi.htm: one ready-filled form for each semi-automated site, in which a person picks a category
/// and sends it. The browser posts straight to the site, so the program sees neither answer nor result.
///
/// The pieces of the page stand in the resources of modes/semi, a form a file. Their odd markup is kept: the
/// bare value attributes, values without quotes and the lone quote of USA Online, option lists without
/// closing tags, </hr>. Nothing is escaped, so a quote in a title breaks the forms.
class SemiPage {
public:
    struct Parts {
        Project &project;
        MainFrame &frame;
        const RunResult &result;
        const RequestCollector &collector; ///< has the encoded values of the last run
        const Hosts &hosts; ///< section [SemiAutomated]; without a host a form has its path alone
        DocumentViewer &viewer;
        SubmissionRun &run;
    };

    /// All parts must outlive this.
    explicit SemiPage(const Parts &theParts);

    /// The whole mode: the checks of a run, then the page. False if the page could not be written; a check
    /// that stops the mode has told why. Yields.
    bool RunMode();

    /// Writes the page with the forms of all sites of List5, selected or not, and shows it. False if it could
    /// not be written; the old one is shown then. Yields.
    bool WriteSemiPage();

    /// Where it was written.
    const QString &Path() const { return page.Path(); }

private:
    QString Html() const;
    QString FormOf(const QString &site, PageTemplate::Values values) const;
    PageTemplate::Values FieldValues() const;

    Parts parts;
    ProjectPage page;
};

} // namespace lanterra
