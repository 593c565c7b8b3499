#pragma once

#include "project/main_frame.h"
#include "submission/run_extensions.h"

#include <functional>
#include <utility>

namespace lanterra {

/// The modes beside the automated run, and the menu entries that lead to them. What carries them out is made
/// behind the run and the main form, which both lead there, and so is joined afterwards.
class ModeCommands : public SubmissionModes {
public:
    struct Actions {
        std::function<void()> topEngines;
        std::function<void()> multipleUrls; ///< the job; its form is shown by SSCommand7
        std::function<void()> semiPage;
        std::function<void()> upgradeCheck;
        std::function<void()> supportForm;
    };

    /// The frame must outlive this.
    explicit ModeCommands(MainFrame &mainFrame) : frame(mainFrame) {}

    /// Comes before any other call. All five must be there, and what they use must live as long as this.
    void Join(Actions allActions) { actions = std::move(allActions); }

    // All of these yield as far as their action does.
    void mnuTopEngines_Click() { SubmitTopEngines(); }
    void mnuTechnical_Click() { actions.supportForm(); }
    void mnuUpgrade_Click() {
        frame.SetPointer(MousePointer::Default);
        actions.upgradeCheck();
    }

    void SubmitMultipleUrls() override { actions.multipleUrls(); }
    void SubmitTopEngines() override { actions.topEngines(); }
    void WriteSemiPage() override { actions.semiPage(); }

private:
    MainFrame &frame;
    Actions actions;
};

} // namespace lanterra
