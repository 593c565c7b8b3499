#pragma once

#include "shell/program.h"

#include <QWidget>
#include <memory>

namespace Ui {
class AboutPane;
}

namespace lanterra {

/// The pane FrameAbout: what the program is. On view while no project is open.
class AboutPane : public QWidget {
    Q_OBJECT

public:
    /// The program must outlive this.
    explicit AboutPane(Program &program);
    ~AboutPane() override;
    Q_DISABLE_COPY_MOVE(AboutPane)

private:
    std::unique_ptr<Ui::AboutPane> ui;
};

} // namespace lanterra
