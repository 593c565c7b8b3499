#pragma once

#include "shell/program.h"

#include <QWidget>
#include <memory>

namespace Ui {
class CategoryPane;
}

namespace lanterra {

/// The pane fraCat: the subject of the page, and a category for each directory.
class CategoryPane : public QWidget {
    Q_OBJECT

public:
    /// The program must outlive the pane.
    explicit CategoryPane(Program &program);
    ~CategoryPane() override;
    Q_DISABLE_COPY_MOVE(CategoryPane)

private:
    std::unique_ptr<Ui::CategoryPane> ui;
};

} // namespace lanterra
