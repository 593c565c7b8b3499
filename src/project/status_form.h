#pragma once

#include "controls/label.h"

namespace lanterra {

/// frmStatus: the progress of a long job, with a Cancel that the job looks at between its steps.
class StatusForm : public QObject {
    Q_OBJECT

public:
    /// Shows the form without blocking and lowers the cancel flag. `maximum` below 1 counts as 1.
    void Show(const QString &text, int maximum);
    /// Moves the bar. A value above the maximum is clipped.
    void Advance(int newValue);
    /// Fills the bar and hides the form.
    void Finish();

    void SSCommand1_Click();

    bool Visible() const { return visible; }
    int Maximum() const { return maximum; }
    int Value() const { return value; }

    Label Caption;             ///< of the form
    Label Label1;              ///< what the job is
    bool StatusCancel = false; ///< the job stops early

signals:
    void VisibleChanged(bool visible);
    void ValueChanged(int value);

private:
    void SetVisible(bool show);

    bool visible = false;
    int maximum = 1;
    int value = 0;
};

} // namespace lanterra
