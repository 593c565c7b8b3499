#pragma once

#include "settings/settings_form.h"
#include "window/form_dialog.h"

#include <memory>

namespace Ui {
class SettingsDialog;
}

namespace lanterra {

/// frmSettings: the options of the program.
class SettingsDialog : public FormDialog {
    Q_OBJECT

public:
    /// The form must outlive the dialog.
    SettingsDialog(SettingsForm &form, QWidget *parent);
    ~SettingsDialog() override;
    Q_DISABLE_COPY_MOVE(SettingsDialog)

private:
    std::unique_ptr<Ui::SettingsDialog> ui;
};

} // namespace lanterra
