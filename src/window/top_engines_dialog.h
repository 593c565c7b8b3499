#pragma once

#include "modes/top_engines_form.h"

#include <QDialog>
#include <memory>

namespace Ui {
class TopEnginesDialog;
}

namespace lanterra {

/// frmTop9: which of the top search engines are wanted, and how their submission goes. It stands beside the
/// main window, which can be used meanwhile, and can itself be used while a box blocks the main window.
class TopEnginesDialog : public QDialog {
    Q_OBJECT

public:
    /// The form must outlive the dialog. `parent` is the main window.
    TopEnginesDialog(TopEnginesForm &topEnginesForm, QWidget *parent);
    ~TopEnginesDialog() override;
    Q_DISABLE_COPY_MOVE(TopEnginesDialog)

    /// Escape and the close box end the job.
    void reject() override { form.Close(); }

protected:
    void changeEvent(QEvent *event) override;

private:
    void Follow(bool visible);
    void AddPanels();

    TopEnginesForm &form;
    std::unique_ptr<Ui::TopEnginesDialog> ui;
};

} // namespace lanterra
