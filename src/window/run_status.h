#pragma once

#include "shell/program.h"

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>

namespace lanterra {

/// The status bar: on the left the line that tells what went wrong, on the right how far a run is and how
/// long it may still take. The bar owns it.
class RunStatus : public QObject {
    Q_OBJECT

public:
    RunStatus(Program &program, QStatusBar &bar);

private:
    void Show();

    const RunEstimate &estimate;
    QProgressBar &progress;
    QLabel &timeLeft;
};

} // namespace lanterra
