#pragma once

#include "shell/program.h"

#include <QWidget>
#include <memory>

namespace Ui {
class OtherDataPane;
}

namespace lanterra {

/// The pane FrameOtherData: the contact data that sites ask for.
class OtherDataPane : public QWidget {
    Q_OBJECT

public:
    /// The program must outlive the pane.
    explicit OtherDataPane(Program &program);
    ~OtherDataPane() override;
    Q_DISABLE_COPY_MOVE(OtherDataPane)

private:
    std::unique_ptr<Ui::OtherDataPane> ui;
};

} // namespace lanterra
