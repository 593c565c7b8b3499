#pragma once

#include "shell/program.h"

#include <QWidget>
#include <memory>

namespace Ui {
class SubmitPane;
}

namespace lanterra {

/// The pane FrameSUBMIT: the run with its channels and counters, and how each site fared.
class SubmitPane : public QWidget {
    Q_OBJECT

public:
    explicit SubmitPane(Program &program);
    ~SubmitPane() override;
    Q_DISABLE_COPY_MOVE(SubmitPane)

private:
    void JoinOutcomes(OutcomeTable &outcomes);
    void JoinChannels(SubmissionRun &run);
    void JoinButtons(Program &program);

    std::unique_ptr<Ui::SubmitPane> ui;
};

} // namespace lanterra
