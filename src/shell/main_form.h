#pragma once

#include "controls/button.h"
#include "controls/label.h"
#include "ports/forms.h"
#include "ports/help_viewer.h"
#include "project/project_files.h"
#include "reports/report_documents.h"
#include "settings/settings_form.h"
#include "settings/web_browser_form.h"
#include "shell/mode_commands.h"
#include "shell/welcome_form.h"
#include "submission/submit_form.h"

#include <array>

namespace lanterra {

/// frmMain: the pane buttons, the toolbar and those menu entries that belong to no other part of the program.
class MainForm : public QObject {
    Q_OBJECT

public:
    static constexpr int ribbonButtons = 9;

    struct Parts {
        Project &project;
        MainFrame &frame;
        ProjectFiles &files;
        ReportDocuments &documents;
        SubmitForm &submitForm;
        SettingsForm &frmSettings;
        WebBrowserForm &frmWebBrowser;
        WelcomeForm &frmWelcome;
        ModeCommands &modes;
        DocumentViewer &viewer;
        const Hosts &hosts;
        Forms &forms;
        Dialogs &dialogs;
        HelpViewer *help; ///< none on a face that shows no help
    };

    /// All parts must outlive the form.
    explicit MainForm(const Parts &theParts);

    // The pane buttons. Each shows its pane, also during a run. That of FraSta is with the statistics.
    void cmdKeyword_Click(); ///< "Description"
    void cmdDesc_Click();    ///< "Other data"
    void cmdEngines_Click(); ///< "Sites"
    void Command14_Click();  ///< "Categories"
    void cmdSubmit_Click();  ///< "Submission"; a limit that is no number becomes 20

    /// A button of the toolbar, 0 to 8; any other number throws std::out_of_range. Its buttons stay down when
    /// they are pressed: `value` true pops the button up again, and the command runs when the face reports it
    /// as up. Yields as far as the command does.
    void SSRibbon1_Click(int index, bool value);

    /// Ends the program in order; returns at once.
    void mnuFileExit_Click() { parts.frame.RequestClose(); }

    // These yield while their forms, documents and boxes are up.
    void mnuSettings_Click();
    void mnuWebBrowser_Click();
    void mnuWelcome_Click() { parts.frmWelcome.Show(); }
    /// The maker's pages; nothing without an address in hosts.ini.
    void mnuWebSite_Click();
    /// The index of the help file; a box tells why it can't be shown.
    void mnuHelpContents_Click();
    void Command16_Click() { mnuHelpContents_Click(); } ///< "Help" in FrameSUBMIT
    void mnuHelpAbout_Click();

    /// Stays in the menu and does nothing: there is no form behind it.
    void mnuSendBad_Click() {}

    QString helpFile; ///< of the application, set at its start; only the name is tested before it is opened

    /// The toolbar, named SSRibbon1_0 to SSRibbon1_8. Those of New and Open are enabled as their entries are.
    std::array<Button, ribbonButtons> SSRibbon1;
    Label VerzijaPrograma; ///< the version beside the pane buttons; support messages quote it
    Label lblAboutVersion; ///< the version in FrameAbout

signals:
    /// A button of the toolbar pops up again.
    void RibbonButtonUp(int index);

private:
    void FollowEntry(int index, const Control &entry);
    void RunRibbonCommand(int index);

    Parts parts;
};

} // namespace lanterra
