#pragma once

#include "controls/label.h"

#include <vector>

namespace lanterra {

/// frmStatus: the progress of a long job, with a Cancel that the job looks at between its steps. A job that
/// begins in a yield of another one has the form to itself until it ends, its Cancel included. Hidden while
/// there is none.
class StatusForm : public Control {
    Q_OBJECT

public:
    StatusForm();

    /// Begins a job: shows the form without blocking and lowers the cancel flag. `maximum` below 1 counts
    /// as 1.
    void Show(const QString &text, int maximum);
    /// Moves the bar. A value above the maximum is clipped.
    void Advance(int newValue);
    /// Fills the bar and gives the form back to the job before this one, or hides it.
    void Finish();

    void SSCommand1_Click();

    int Maximum() const { return maximum; }
    int Value() const { return value; }

    Label Label1;              ///< what the job is
    bool StatusCancel = false; ///< the job stops early

signals:
    void ValueChanged(int value);

private:
    struct Job {
        QString text;
        int maximum = 1;
        int value = 0;
        bool cancelled = false;
        bool visible = false;
    };
    void Take(const Job &job);

    int maximum = 1;
    int value = 0;
    int depth = 0;            ///< jobs that have begun and not ended
    std::vector<Job> waiting; ///< the jobs around the one on show, outermost first
};

} // namespace lanterra
