#pragma once

#include "shell/program.h"

#include <QWidget>
#include <memory>

namespace Ui {
class SitesPane;
}

namespace lanterra {

/// The pane FrameEngineList: which sites get the page.
class SitesPane : public QWidget {
    Q_OBJECT

public:
    SitesPane(Program &program, Forms &forms);
    ~SitesPane() override;
    Q_DISABLE_COPY_MOVE(SitesPane)

private:
    std::unique_ptr<Ui::SitesPane> ui;
};

} // namespace lanterra
