#pragma once

#include "shell/program.h"

#include <QWidget>
#include <memory>

namespace Ui {
class SearchPane;
}

namespace lanterra {

/// The pane fraSearch: web search and who links to an address, with the saved answers.
class SearchPane : public QWidget {
    Q_OBJECT

public:
    explicit SearchPane(Program &program);
    ~SearchPane() override;
    Q_DISABLE_COPY_MOVE(SearchPane)

private:
    std::unique_ptr<Ui::SearchPane> ui;
};

} // namespace lanterra
