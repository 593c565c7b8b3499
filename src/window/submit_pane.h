#pragma once

#include "shell/program.h"

#include <QWidget>
#include <memory>

namespace Ui {
class SubmitPane;
}

namespace lanterra {

class WidgetForms;

/// The pane FrameSUBMIT: the run with its channels and counters, and how each site fared.
class SubmitPane : public QWidget {
    Q_OBJECT

public:
    SubmitPane(Program &program, WidgetForms &forms);
    ~SubmitPane() override;
    Q_DISABLE_COPY_MOVE(SubmitPane)

private:
    void JoinOutcomes(OutcomeTable &outcomes);
    void JoinChannels(SubmissionRun &run, WidgetForms &forms);
    void JoinButtons(Program &program);

    std::unique_ptr<Ui::SubmitPane> ui;
};

} // namespace lanterra
