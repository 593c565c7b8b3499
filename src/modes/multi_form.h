#pragma once

#include "controls/list_boks.h"
#include "ports/dialogs.h"
#include "project/project_record.h"
#include "submission/submission_run.h"

namespace lanterra {

/// frmMulti: the addresses of a project with several URLs, one a line.
class MultiForm : public Control {
    Q_OBJECT

public:
    /// All must outlive the form, which comes up hidden.
    MultiForm(ProjectRecord &projectRecord, SubmissionRun &submissionRun, Dialogs &inputBoxes);

    /// Shows the form and fills its list: in the several-URL mode with the slots' addresses of more than ten
    /// characters, so that shorter ones are lost at OK, else with the project's one address. While the form
    /// is up it does nothing, so that the window may call it each time that the form gets the focus back.
    void Activate();

    /// Hides the form. Two lines or more become the slots of the several-URL mode; of equal ones, capitals or
    /// not, the last one stays. Lines behind the tenth are dropped. Fewer than two end that mode, and the
    /// project keeps the address that its box holds.
    void cmdOK_Click();
    /// Hides the form and changes nothing.
    void cmdCancel_Click() { SetVisible(false); }

    // Further ways to change the list, by a box each. AddUrl puts "http://" before an address without scheme.
    // The first two block while events go on.
    void AddUrl();
    void EditUrl();
    void RemoveUrl();

    ListBoks ListedURLs;
    Button cmdOK;
    Button cmdCancel;

private:
    void FillList();
    void TakeSingle();
    void TakeSeveral();
    void StoreLines();
    int Occurrences(const QString &line) const;

    ProjectRecord &record;
    SubmissionRun &run;
    Dialogs &dialogs;
};

} // namespace lanterra
