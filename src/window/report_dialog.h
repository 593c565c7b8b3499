#pragma once

#include "reports/report_form.h"
#include "window/form_dialog.h"

#include <memory>

namespace Ui {
class ReportDialog;
}

namespace lanterra {

/// frmReport: the account of the last run as a text. It is written anew each time the dialog becomes the
/// active window.
class ReportDialog : public FormDialog {
    Q_OBJECT

public:
    /// The form must outlive the dialog.
    ReportDialog(ReportForm &reportForm, QWidget *parent);
    ~ReportDialog() override;
    Q_DISABLE_COPY_MOVE(ReportDialog)

signals:
    void ActivationChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    void Rebuild();

    ReportForm &form;
    std::unique_ptr<Ui::ReportDialog> ui;
};

} // namespace lanterra
