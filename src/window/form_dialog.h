#pragma once

#include <QDialog>
#include <functional>

namespace lanterra {

/// A dialog that a form's model opens and closes: it is up until the model hides itself. Escape and the close
/// box only tell the model.
class FormDialog : public QDialog {
    Q_OBJECT

public:
    /// Shows the dialog and returns when the model is hidden. Returns at once, without showing anything, for
    /// a model that is hidden already. Events go on meanwhile.
    void ExecWhileVisible();

    void reject() override { closedByUser(); }

protected:
    FormDialog(QWidget *parent, std::function<void()> tellModel)
        : QDialog(parent), closedByUser(std::move(tellModel)) {}

    /// Closes the dialog when the model hides itself. The model must outlive the dialog.
    template <class Model>
    void Follow(Model &model) {
        connect(&model, &Model::VisibleChanged, this, [this](bool visible) {
            modelVisible = visible;
            if (!visible)
                done(QDialog::Accepted);
        });
        modelVisible = model.Visible();
    }

private:
    void FitHeight();
    void FindPlace();

    std::function<void()> closedByUser;
    bool modelVisible = false;
};

} // namespace lanterra
