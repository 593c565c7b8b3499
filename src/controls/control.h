#pragma once

#include <QObject>
#include <QString>

namespace lanterra {

/// What all controls share: an observable value that a face can enable, show and give the focus to. A control
/// has no picture of itself; the window binds it to a widget by its name, the command line writes to it
/// directly.
class Control : public QObject {
    Q_OBJECT

public:
    bool Enabled() const { return enabled; }
    void SetEnabled(bool on);

    bool Visible() const { return visible; }
    void SetVisible(bool on);

    /// Asks the face to move the keyboard focus here. Without a face nothing happens.
    void SetFocus() { emit FocusRequested(); }

signals:
    void EnabledChanged(bool on);
    void VisibleChanged(bool on);
    void FocusRequested();

private:
    bool enabled = true;
    bool visible = true;
};

/// Puts a control on its form, under the name by which a face looks for it among the form's children. Either
/// may be destroyed first if the control is a member of the form.
void AddToForm(QObject &form, QObject &control, const QString &name);

} // namespace lanterra
