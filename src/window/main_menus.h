#pragma once

#include "shell/program.h"

#include <QObject>

class QAction;
class QMainWindow;
class QMenu;

namespace Ui {
class MainWindow;
}

namespace lanterra {

class WidgetForms;

/// Joins the entries of the menu bar, the toolbar and the popup menus to their handlers. The main window owns
/// it; all else that it is given must outlive the window.
class MainMenus : public QObject {
    Q_OBJECT

public:
    MainMenus(Ui::MainWindow &mainUi, Program &theProgram, WidgetForms &widgetForms, QMainWindow &window);

private:
    void JoinFileMenu();
    void JoinViewMenu();
    void JoinSelectMenu();
    void JoinOptionsMenu();
    void JoinHelpMenu();
    void JoinRibbon();
    void PutRibbonBehindPanes();
    void JoinSubmitPopup();
    void JoinCancelPopup();
    void JoinChannelPopups();
    QMenu &Popup(const QString &title, const QList<QAction *> &entries);

    Ui::MainWindow &ui;
    Program &program;
    WidgetForms &forms;
    QMainWindow &window;
};

} // namespace lanterra
