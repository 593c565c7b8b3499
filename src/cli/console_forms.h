#pragma once

#include "ports/forms.h"
#include "submission/submission_run.h"

namespace lanterra {

/// Answers the popup menus that a run opens; all other menus and forms are dismissed.
class ConsoleForms final : public Forms {
public:
    using Entry = void (SubmissionRun::*)();

    /// The run must outlive all calls.
    void SetRun(SubmissionRun &submissionRun) { run = &submissionRun; }

    void SetSubmitEntry(Entry entry) { submitEntry = entry; }

    void ShowModal(ModalForm form) override;
    /// The SUBMIT menu gets the entry that was set, the Cancel menu "Cancel entire submission process".
    void PopUp(PopupMenu menu) override;

private:
    SubmissionRun *run = nullptr;
    Entry submitEntry = &SubmissionRun::mnuAuto_Click;
};

} // namespace lanterra
