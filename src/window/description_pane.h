#pragma once

#include "shell/program.h"

#include <QWidget>
#include <memory>

namespace Ui {
class DescriptionPane;
}

namespace lanterra {

/// The pane FrameDescription: the page itself, and which of several URLs is on show.
class DescriptionPane : public QWidget {
    Q_OBJECT

public:
    /// The program must outlive the pane.
    explicit DescriptionPane(Program &program);
    ~DescriptionPane() override;
    Q_DISABLE_COPY_MOVE(DescriptionPane)

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ShowDescriptionLength(const QString &text);
    void ShowUrlNumber();

    const ProjectRecord &record;
    UrlSlots &urlSlots;
    std::unique_ptr<Ui::DescriptionPane> ui;
};

} // namespace lanterra
