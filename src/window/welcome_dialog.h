#pragma once

#include "shell/welcome_form.h"
#include "window/form_dialog.h"

#include <memory>

namespace Ui {
class WelcomeDialog;
}

namespace lanterra {

/// frmWelcome: greets a new user.
class WelcomeDialog : public FormDialog {
    Q_OBJECT

public:
    /// The form must outlive this.
    WelcomeDialog(WelcomeForm &form, QWidget *parent);
    ~WelcomeDialog() override;
    Q_DISABLE_COPY_MOVE(WelcomeDialog)

private:
    std::unique_ptr<Ui::WelcomeDialog> ui;
};

} // namespace lanterra
