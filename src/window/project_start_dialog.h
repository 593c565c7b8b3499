#pragma once

#include "project/project_dialog.h"
#include "window/form_dialog.h"

#include <memory>

namespace Ui {
class ProjectStartDialog;
}

namespace lanterra {

/// frmProjectDialog: a new project or one that exists.
class ProjectStartDialog : public FormDialog {
    Q_OBJECT

public:
    /// The form must outlive the dialog.
    ProjectStartDialog(ProjectDialog &form, QWidget *parent);
    ~ProjectStartDialog() override;
    Q_DISABLE_COPY_MOVE(ProjectStartDialog)

private:
    std::unique_ptr<Ui::ProjectStartDialog> ui;
};

} // namespace lanterra
