#pragma once

#include <QWidget>

namespace lanterra {

/// Joins the controls of a form's model to the widgets and actions of the same object name: each shows the
/// other's value, is enabled and visible as the control says, and takes the focus when asked. What a press
/// does is the form's own wiring.
class FormBinder {
public:
    /// The dynamic property of each joined widget and action that holds its control, a QObject *.
    static constexpr auto boundProperty = "control";

    explicit FormBinder(QWidget &formWidget) : form(formWidget) {}

    /// Joins every named child of the model for which the form has a widget or an action; the others are
    /// passed over, because a model can be spread over several forms, and so is what a part of the form has
    /// joined already. A widget of an unfitting class is a fault of the form and ends the program. The model
    /// must outlive the form.
    void Bind(const QObject &model) const;

private:
    QWidget &form;
};

} // namespace lanterra
