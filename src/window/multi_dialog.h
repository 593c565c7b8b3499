#pragma once

#include "modes/multi_form.h"
#include "window/form_dialog.h"

#include <memory>

namespace Ui {
class MultiDialog;
}

namespace lanterra {

/// frmMulti: the addresses of a project with several URLs, one a line.
class MultiDialog : public FormDialog {
    Q_OBJECT

public:
    MultiDialog(MultiForm &multiForm, QWidget *parent);
    ~MultiDialog() override;
    Q_DISABLE_COPY_MOVE(MultiDialog)

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void EditLine(int row);

    MultiForm &form;
    std::unique_ptr<Ui::MultiDialog> ui;
};

} // namespace lanterra
