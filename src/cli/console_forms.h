#pragma once

#include "ports/forms.h"

namespace lanterra {

class SubmissionRun;

/// Answers the popup menus that a run opens; all other menus and forms are dismissed.
class ConsoleForms final : public Forms {
public:
    /// The run must outlive all calls.
    void SetRun(SubmissionRun &submissionRun) { run = &submissionRun; }

    void ShowModal(ModalForm form) override;
    /// The SUBMIT menu gets the automated entry, the Cancel menu "Cancel entire submission process".
    void PopUp(PopupMenu menu) override;

private:
    SubmissionRun *run = nullptr;
};

} // namespace lanterra
