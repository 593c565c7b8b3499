#pragma once

#include "controls/button.h"
#include "controls/check_box.h"
#include "controls/text_box.h"
#include "ports/dialogs.h"
#include "settings/options.h"

namespace lanterra {

/// frmWebBrowser: the choice between the desktop's browser and a program of the user's own. Its BrowserPath
/// is what the rest of the program reads, also while the form is hidden.
class WebBrowserForm : public Control {
    Q_OBJECT

public:
    /// `base` is the path of the open project, to which Browse writes. All must outlive the form, which comes
    /// up hidden and empty.
    WebBrowserForm(Options &storedOptions, Dialogs &fileDialogs, QString &base);

    /// Fills BrowserPath from the store.
    void Load();

    /// Sets the two options by what BrowserPath holds, and shows the form.
    void Show();

    void Option1_Click() { Choose(false); }
    void Option2_Click() { Choose(true); }

    /// OK: stores the browser and hides the form. A text of six characters or fewer names no browser, nor
    /// does any while Option1 is on.
    void SSCommand1_Click();
    /// Cancel: hides the form. The text stays in the box.
    void SSCommand2_Click() { SetVisible(false); }
    /// Browse: asks for the program. Blocks while events go on.
    void SSCommand3_Click();

    CheckBox Option1; ///< the desktop's browser
    CheckBox Option2; ///< a program of the user's own; one of the two is on
    TextBox BrowserPath;
    Button SSCommand1;
    Button SSCommand2;
    Button SSCommand3;

private:
    void Choose(bool ownBrowser);

    Options &options;
    Dialogs &dialogs;
    QString &projectPath;
};

} // namespace lanterra
