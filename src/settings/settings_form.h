#pragma once

#include "controls/button.h"
#include "controls/check_box.h"
#include "controls/text_box.h"
#include "ports/dialogs.h"
#include "settings/window_settings.h"

namespace lanterra {

/// frmSettings: the options that the user sets. It stays loaded while it is hidden, and its boxes are the
/// options that the rest of the program reads.
class SettingsForm : public Control {
    Q_OBJECT

public:
    /// All must outlive the form, which comes up hidden and empty.
    SettingsForm(Options &storedOptions, WindowSettings &window, Dialogs &messageDialogs);

    /// Fills the boxes from the store. At the very first time the options get their first values, which are
    /// stored at once.
    void Load();

    /// Fills the proxy's name and port from the store, whether the proxy is used or not. Without a stored
    /// name the port is left alone.
    void LoadProxyTexts();

    void chkProxy_Click();

    /// Puts the boxes into force, stores them, all or none, and hides the form; tells if they could not be
    /// stored. A proxy without a name is not kept.
    void cmdOK_Click();

    /// Hides the form. What was changed stays in the boxes and counts from its next use on, but isn't stored.
    void cmdCancel_Click();

    CheckBox chkProxy;
    TextBox Text1; ///< name of the proxy server
    TextBox Text2; ///< its port
    CheckBox check_for_program_upgrade;
    CheckBox SnimiNaIzlazu; ///< save the project on exit
    CheckBox LoadLastProject;
    CheckBox CreateStatistic;
    Button cmdOK;
    Button cmdCancel;

signals:
    /// The proxy as it stands in the boxes was confirmed. Raised before anything is stored.
    void ProxyConfirmed();

private:
    struct BoxOption {
        CheckBox &box;
        const Option &option;
    };
    std::array<BoxOption, 4> Boxes();
    void FillFirstValues();
    void LoadBoxes();
    void CheckProxy(bool on);
    bool StoreBoxes();

    Options &options;
    WindowSettings &windowSettings;
    Dialogs &dialogs;
};

} // namespace lanterra
