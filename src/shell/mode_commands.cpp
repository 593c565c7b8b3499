#include "shell/mode_commands.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

void Run(const ModeCommands::Action &action) {
    if (action)
        action();
}

} // namespace

ModeCommands::ModeCommands(SubmissionRun &submissionRun, MainFrame &mainFrame, ProjectRecord &projectRecord)
    : frame(mainFrame), multipleButton(projectRecord.SSCommand7) {
    AddToForm(*this, mnuTopEngines, u"mnuTopEngines"_s);
    AddToForm(*this, mnuUpgrade, u"mnuUpgrade"_s);
    AddToForm(*this, mnuTechnical, u"mnuTechnical"_s);
    AddToForm(*this, mnuTop9, u"mnuTop9"_s);
    AddToForm(*this, mnuMultiple, u"mnuMultiple"_s);
    AddToForm(*this, mnuSemi, u"mnuSemi"_s);
    for (Control *entry :
         {&mnuTopEngines, &mnuUpgrade, &mnuTechnical, &mnuTop9, &mnuMultiple, &mnuSemi, &multipleButton})
        entry->SetEnabled(false);
    submissionRun.SetModes(this);
}

void ModeCommands::JoinTopEngines(Action submit) {
    topEngines = std::move(submit);
    mnuTopEngines.SetEnabled(true);
    mnuTop9.SetEnabled(true);
}

void ModeCommands::JoinMultipleUrls(Action submit) {
    multipleUrls = std::move(submit);
    mnuMultiple.SetEnabled(true);
    multipleButton.SetEnabled(true);
}

void ModeCommands::JoinSemiPage(Action write) {
    semiPage = std::move(write);
    mnuSemi.SetEnabled(true);
}

void ModeCommands::JoinUpgrade(Action checkNow) {
    upgradeCheck = std::move(checkNow);
    mnuUpgrade.SetEnabled(true);
}

void ModeCommands::JoinSupport(Action showForm) {
    supportForm = std::move(showForm);
    mnuTechnical.SetEnabled(true);
}

void ModeCommands::mnuUpgrade_Click() {
    frame.SetPointer(MousePointer::Default);
    Run(upgradeCheck);
}

void ModeCommands::mnuTechnical_Click() { Run(supportForm); }

void ModeCommands::SubmitMultipleUrls() { Run(multipleUrls); }

void ModeCommands::SubmitTopEngines() { Run(topEngines); }

void ModeCommands::WriteSemiPage() { Run(semiPage); }

} // namespace lanterra
