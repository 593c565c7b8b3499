#pragma once

#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>
#include <vector>

namespace lanterra {

/// What a user waits for, with words for the case that it never comes.
struct Condition {
    QString what;
    std::function<bool()> holds;
};

/// What a user then does. It may open a dialog or a menu and so return late.
using Action = std::function<void()>;

struct Step {
    Condition when;
    Action act;
};

/// Works a program as a user does who waits for each thing to come up: looks whenever the event queue is
/// about to sleep, in whatever dialog or wait that is, and acts in an event of its own. Nothing wakes the
/// queue for its sake, so a program that forgets to wake up is found out.
class StepPlayer : public QObject {
    Q_OBJECT

public:
    /// `giveUp` is called when a step didn't come in time, which is a failure of the test; all that is up is
    /// dismissed then.
    StepPlayer(const std::vector<Step> &theSteps, Action giveUp);

    bool Done() const { return steps.empty(); }

private:
    void Look();
    void Act();
    void GiveUp();

    std::deque<Step> steps;
    Action end;
    QTimer deadline;
    bool acting = false; ///< an event to act is on its way
    bool gaveUp = false;
};

} // namespace lanterra
