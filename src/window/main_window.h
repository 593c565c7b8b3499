#pragma once

#include "shell/program.h"

#include <QMainWindow>
#include <functional>
#include <map>
#include <memory>

class QPushButton;

namespace Ui {
class MainWindow;
}

namespace lanterra {

class WidgetForms;

/// frmMain: the column of pane buttons, the eight panes of which one is on view, and the status bar. The
/// menus and the toolbar are joined by MainMenus.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Makes the window, hidden; it shows itself when the program's frame is visible. Both must outlive it.
    MainWindow(Program &theProgram, WidgetForms &widgetForms);
    ~MainWindow() override;
    Q_DISABLE_COPY_MOVE(MainWindow)

signals:
    /// The user or the program wants to end. The window stays as it is: everything that waits has to return
    /// first.
    void EndWanted();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void AddPanes(WidgetForms &forms);
    void AddPane(Pane pane, QWidget *widget, QPushButton *button);
    void JoinPaneButtons();
    void JoinPaneButton(QPushButton *button, const std::function<void()> &show);
    void FocusPane();
    void JoinFrame();
    void ShowPane(Pane pane);
    void ShowPointer(MousePointer pointer);

    Program &program;
    std::map<Pane, std::pair<QWidget *, QPushButton *>> panes; ///< with the button that leads there, if any
    std::unique_ptr<Ui::MainWindow> ui;
};

} // namespace lanterra
