#pragma once

#include "shell/program.h"

#include <QWidget>
#include <memory>

namespace Ui {
class SitesPane;
}

namespace lanterra {

class WidgetForms;

/// The pane FrameEngineList: which sites get the page.
class SitesPane : public QWidget {
    Q_OBJECT

public:
    /// Both must outlive the pane.
    SitesPane(Program &program, WidgetForms &forms);
    ~SitesPane() override;
    Q_DISABLE_COPY_MOVE(SitesPane)

private:
    std::unique_ptr<Ui::SitesPane> ui;
};

} // namespace lanterra
