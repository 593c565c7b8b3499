#include "window/main_menus.h"

#include "ui_main_window.h"
#include "window/form_binder.h"
#include "window/widget_forms.h"

#include <QToolButton>

namespace lanterra {

MainMenus::MainMenus(Ui::MainWindow &mainUi, Program &theProgram, WidgetForms &widgetForms,
                     QMainWindow &mainWindow)
    : QObject(&mainWindow), ui(mainUi), program(theProgram), forms(widgetForms), window(mainWindow) {
    FormBinder(window).Bind(program.files);
    FormBinder(window).Bind(program.submitForm);
    JoinFileMenu();
    JoinViewMenu();
    JoinSelectMenu();
    JoinOptionsMenu();
    JoinHelpMenu();
    JoinRibbon();
    JoinSubmitPopup();
    JoinCancelPopup();
    JoinChannelPopups();
}

void MainMenus::JoinFileMenu() {
    ProjectFiles &files = program.files;
    connect(ui.mnuFileNew, &QAction::triggered, this, [&files] { files.mnuFileNew_Click(); });
    connect(ui.mnuFileOpen, &QAction::triggered, this, [&files] { files.mnuFileOpen_Click(); });
    connect(ui.mnuFileSave, &QAction::triggered, this, [&files] { files.mnuFileSave_Click(); });
    connect(ui.mnuFileSaveAs, &QAction::triggered, this, [&files] { files.mnuFileSaveAs_Click(); });
    connect(ui.mnuFilePrintPreview, &QAction::triggered, this,
            [this] { program.siteListPrint.mnuFilePrintPreview_Click(); });
    const std::array recent{ui.mnuFileMRU1, ui.mnuFileMRU2, ui.mnuFileMRU3, ui.mnuFileMRU4, ui.mnuFileMRU5};
    int item = 1;
    for (const QAction *entry : recent) {
        connect(entry, &QAction::triggered, this, [&files, item] { files.mnuFileMRU_Click(item); });
        ++item;
    }
    connect(ui.mnuFileExit, &QAction::triggered, this, [this] { program.frmMain.mnuFileExit_Click(); });
}

void MainMenus::JoinViewMenu() {
    ReportDocuments &documents = program.reportDocuments;
    connect(ui.mnuHtml, &QAction::triggered, this, [&documents] { documents.mnuHtml_Click(); });
    connect(ui.mnuViewReport, &QAction::triggered, this, [this] { program.frmReport.mnuViewReport_Click(); });
    connect(ui.mnuViewLogfile, &QAction::triggered, this, [&documents] { documents.mnuViewLogfile_Click(); });
}

void MainMenus::JoinSelectMenu() {
    SiteSelection &selection = program.siteSelection;
    connect(ui.mnuEngDir, &QAction::triggered, this, [&selection] { selection.mnuEngDir_Click(); });
    connect(ui.mnuEngEng, &QAction::triggered, this, [&selection] { selection.mnuEngEng_Click(); });
    connect(ui.mnuEngLnk, &QAction::triggered, this, [&selection] { selection.mnuEngLnk_Click(); });
    connect(ui.mnuEngNot, &QAction::triggered, this, [&selection] { selection.mnuEngNot_Click(); });
    connect(ui.mnuEngReg, &QAction::triggered, this, [&selection] { selection.mnuEngReg_Click(); });
    forms.SetMenu(PopupMenu::Engines, *ui.mnuEngines);
}

void MainMenus::JoinOptionsMenu() {
    MainForm &form = program.frmMain;
    ModeCommands &modes = program.modes;
    connect(ui.mnuTopEngines, &QAction::triggered, this, [&modes] { modes.mnuTopEngines_Click(); });
    connect(ui.mnuSettings, &QAction::triggered, this, [&form] { form.mnuSettings_Click(); });
    connect(ui.mnuWebBrowser, &QAction::triggered, this, [&form] { form.mnuWebBrowser_Click(); });
    connect(ui.mnuUpgrade, &QAction::triggered, this, [&modes] { modes.mnuUpgrade_Click(); });
    connect(ui.mnuSendBad, &QAction::triggered, this, [&form] { form.mnuSendBad_Click(); });
}

void MainMenus::JoinHelpMenu() {
    MainForm &form = program.frmMain;
    connect(ui.mnuHelpContents, &QAction::triggered, this, [&form] { form.mnuHelpContents_Click(); });
    connect(ui.mnuTechnical, &QAction::triggered, this, [this] { program.modes.mnuTechnical_Click(); });
    connect(ui.mnuHelpAbout, &QAction::triggered, this, [&form] { form.mnuHelpAbout_Click(); });
    connect(ui.mnuWebSite, &QAction::triggered, this, [&form] { form.mnuWebSite_Click(); });
    connect(ui.mnuWelcome, &QAction::triggered, this, [&form] { form.mnuWelcome_Click(); });
}

// A button of this toolbar is never seen down, so only its coming up is told.
void MainMenus::JoinRibbon() {
    const QList<QAction *> buttons = ui.SSRibbon1->actions();
    for (int index = 0; index < buttons.size(); ++index) {
        QAction &button = *buttons[index];
        connect(&button, &QAction::triggered, this,
                [this, index] { program.frmMain.SSRibbon1_Click(index, false); });
        ui.SSRibbon1->widgetForAction(&button)->setAccessibleName(button.toolTip());
    }
    auto *const withText = qobject_cast<QToolButton *>(ui.SSRibbon1->widgetForAction(buttons.last()));
    withText->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    withText->setObjectName(QStringLiteral("ribbonWithText")); // for the style sheet
    PutRibbonBehindPanes();
}

// Tab comes to the toolbar last, as the panes are used more. Only a widget that takes the focus has a place.
void MainMenus::PutRibbonBehindPanes() {
    QWidget *before = window.previousInFocusChain();
    while (!(before->focusPolicy() & Qt::TabFocus))
        before = before->previousInFocusChain();
    const QList<QAction *> buttons = ui.SSRibbon1->actions();
    for (QAction *action : buttons) {
        QWidget *const button = ui.SSRibbon1->widgetForAction(action);
        button->setFocusPolicy(Qt::TabFocus);
        QWidget::setTabOrder(before, button);
        before = button;
    }
}

void MainMenus::JoinSubmitPopup() {
    SubmissionRun &run = program.run;
    connect(ui.mnuAuto, &QAction::triggered, this, [&run] { run.mnuAuto_Click(); });
    connect(ui.mnuTop9, &QAction::triggered, this, [&run] { run.mnuTop9_Click(); });
    connect(ui.mnuMultiple, &QAction::triggered, this, [&run] { run.mnuMultiple_Click(); });
    connect(ui.mnuSemi, &QAction::triggered, this, [&run] { run.mnuSemi_Click(); });
    forms.SetMenu(PopupMenu::Submit,
                  Popup(tr("Submit"), {ui.mnuAuto, ui.mnuTop9, ui.mnuMultiple, ui.mnuSemi}));
}

void MainMenus::JoinCancelPopup() {
    SubmissionRun &run = program.run;
    connect(ui.mnuCancelCurrent, &QAction::triggered, this, [&run] { run.mnuCancelCurrent_Click(); });
    connect(ui.mnuCancelEntire, &QAction::triggered, this, [&run] { run.mnuCancelEntire_Click(); });
    forms.SetMenu(PopupMenu::Cancel2, Popup(tr("Cancel"), {ui.mnuCancelCurrent, ui.mnuCancelEntire}));
}

void MainMenus::JoinChannelPopups() {
    struct Entries {
        PopupMenu menu;
        QAction *abort;
        QAction *disable;
    };
    const std::array<Entries, channelCount> channels{{{PopupMenu::Status, ui.mnuAbort, ui.mnuDisabled},
                                                      {PopupMenu::Status2, ui.mnuAbort2, ui.mnuDisabled2},
                                                      {PopupMenu::Status3, ui.mnuAbort3, ui.mnuDisabled3},
                                                      {PopupMenu::Status4, ui.mnuAbort4, ui.mnuDisabled4},
                                                      {PopupMenu::Status5, ui.mnuAbort5, ui.mnuDisabled5}}};
    int number = 1;
    for (const Entries &channel : channels) {
        connect(channel.abort, &QAction::triggered, this,
                [this, number] { program.run.mnuAbort_Click(number); });
        connect(channel.disable, &QAction::triggered, this,
                [this, number] { program.run.mnuDisabled_Click(number); });
        forms.SetMenu(channel.menu, Popup(tr("Channel %1").arg(number), {channel.abort, channel.disable}));
        ++number;
    }
}

QMenu &MainMenus::Popup(const QString &title, const QList<QAction *> &entries) {
    auto *const menu = new QMenu(title, &window);
    menu->addActions(entries);
    return *menu;
}

} // namespace lanterra
