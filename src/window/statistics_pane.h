#pragma once

#include "shell/program.h"

#include <QWidget>
#include <memory>

namespace Ui {
class StatisticsPane;
}

namespace lanterra {

/// The pane FraSta: the sessions of the project and totals over them.
class StatisticsPane : public QWidget {
    Q_OBJECT

public:
    /// The program must outlive the pane.
    explicit StatisticsPane(Program &program);
    ~StatisticsPane() override;
    Q_DISABLE_COPY_MOVE(StatisticsPane)

private:
    std::unique_ptr<Ui::StatisticsPane> ui;
};

} // namespace lanterra
