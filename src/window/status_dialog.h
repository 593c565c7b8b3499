#pragma once

#include "project/status_form.h"

#include <QDialog>
#include <QTimer>
#include <memory>

namespace Ui {
class StatusDialog;
}

namespace lanterra {

/// frmStatus: the progress of a long job, beside the main window. A job that ends at once doesn't flash up.
class StatusDialog : public QDialog {
    Q_OBJECT

public:
    /// The form must outlive this.
    StatusDialog(StatusForm &statusForm, QWidget *parent);
    ~StatusDialog() override;
    Q_DISABLE_COPY_MOVE(StatusDialog)

    /// Escape and the close box press Cancel.
    void reject() override { form.SSCommand1_Click(); }

private:
    void ShowProgress();

    StatusForm &form;
    QTimer delay;
    std::unique_ptr<Ui::StatusDialog> ui;
};

} // namespace lanterra
