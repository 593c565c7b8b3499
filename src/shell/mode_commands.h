#pragma once

#include "controls/control.h"
#include "project/main_frame.h"
#include "project/project_record.h"
#include "submission/submission_run.h"

#include <functional>

namespace lanterra {

/// The modes beside the automated run, and the menu entries that lead to them. An entry is disabled until the
/// part of the program that carries it out is joined.
class ModeCommands : public QObject, public SubmissionModes {
    Q_OBJECT

public:
    using Action = std::function<void()>;

    /// Becomes the modes of the run. All must outlive this.
    ModeCommands(SubmissionRun &submissionRun, MainFrame &mainFrame, ProjectRecord &projectRecord);

    // Each joins one mode and enables what leads to it. What the action uses must live as long as this.
    void JoinTopEngines(Action submit);
    void JoinMultipleUrls(Action submit); ///< the job; its form is shown by SSCommand7
    void JoinSemiPage(Action write);
    void JoinUpgrade(Action checkNow);
    void JoinSupport(Action showForm);

    // These yield as far as the joined action does, and do nothing without one.
    void mnuTopEngines_Click() { SubmitTopEngines(); }
    void mnuUpgrade_Click();
    void mnuTechnical_Click();

    void SubmitMultipleUrls() override;
    void SubmitTopEngines() override;
    void WriteSemiPage() override;

    Control mnuTopEngines, mnuUpgrade, mnuTechnical;
    Control mnuTop9, mnuMultiple, mnuSemi; ///< entries of the popup of SUBMIT

private:
    MainFrame &frame;
    Control &multipleButton;
    Action topEngines, multipleUrls, semiPage, upgradeCheck, supportForm;
};

} // namespace lanterra
