#pragma once

#include "shell/support_form.h"
#include "window/form_dialog.h"

#include <memory>

namespace Ui {
class SupportDialog;
}

namespace lanterra {

/// frmTechSupp: a message to the technical support.
class SupportDialog : public FormDialog {
    Q_OBJECT

public:
    /// The form must outlive this.
    SupportDialog(SupportForm &form, QWidget *parent);
    ~SupportDialog() override;
    Q_DISABLE_COPY_MOVE(SupportDialog)

private:
    std::unique_ptr<Ui::SupportDialog> ui;
};

} // namespace lanterra
