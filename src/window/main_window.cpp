#include "window/main_window.h"

#include "ui_main_window.h"
#include "window/about_pane.h"
#include "window/category_pane.h"
#include "window/description_pane.h"
#include "window/form_binder.h"
#include "window/icons.h"
#include "window/main_menus.h"
#include "window/other_data_pane.h"
#include "window/run_status.h"
#include "window/screen_room.h"
#include "window/search_pane.h"
#include "window/sites_pane.h"
#include "window/statistics_pane.h"
#include "window/submit_pane.h"
#include "window/widget_forms.h"

#include <QCloseEvent>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>

namespace lanterra {

MainWindow::MainWindow(Program &theProgram, WidgetForms &widgetForms)
    : program(theProgram), ui(std::make_unique<Ui::MainWindow>()) {
    ui->setupUi(this);
    resize(size().boundedTo(RoomOnScreen(*this)));
    ApplyIcons(*this);
    AddPanes(widgetForms);
    JoinPaneButtons();
    new MainMenus(*ui, program, widgetForms, *this);
    new RunStatus(program, *ui->statusbar);
    FormBinder(*this).Bind(program.frmMain);
    JoinFrame();
}

MainWindow::~MainWindow() = default;

void MainWindow::AddPanes(WidgetForms &forms) {
    AddPane(Pane::FrameAbout, new AboutPane(program), nullptr);
    AddPane(Pane::FrameDescription, new DescriptionPane(program), ui->cmdKeyword);
    AddPane(Pane::FrameOtherData, new OtherDataPane(program), ui->cmdDesc);
    AddPane(Pane::FrameEngineList, new SitesPane(program, forms), ui->cmdEngines);
    AddPane(Pane::fraCat, new CategoryPane(program), ui->Command14);
    AddPane(Pane::FrameSUBMIT, new SubmitPane(program, forms), ui->cmdSubmit);
    AddPane(Pane::FraSta, new StatisticsPane(program), ui->cmdOrder);
    AddPane(Pane::fraSearch, new SearchPane(program), ui->Command5);
}

void MainWindow::AddPane(Pane pane, QWidget *widget, QPushButton *button) {
    // What the pane has chosen to take the keys first; with the new parents it is forgotten.
    QWidget *const first = widget->focusWidget();
    // A small screen scrolls what it can't show.
    auto *const scroll = new QScrollArea;
    scroll->setWidget(widget);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    ui->panes->addWidget(scroll);
    if (first)
        first->setFocus();
    panes[pane] = {scroll, button};
}

// Qt clicks a button a tenth of a second after its key was pressed, and a key of the new pane that is typed
// meanwhile would be lost. These act at once.
void MainWindow::JoinPaneButton(QPushButton *button, const std::function<void()> &show) {
    button->setShortcut({});
    new QShortcut(QKeySequence::mnemonic(button->text()), button, [this, button] {
        button->click();
        FocusPane();
    });
    connect(button, &QPushButton::clicked, this, show);
}

// Who calls a pane by its key goes on with the keys there: where the focus was last, or at the top.
void MainWindow::FocusPane() {
    QWidget *const pane = ui->panes->currentWidget();
    QWidget *first = pane->focusWidget();
    for (QWidget *each = pane->nextInFocusChain(); !first && pane->isAncestorOf(each);
         each = each->nextInFocusChain()) {
        if ((each->focusPolicy() & Qt::TabFocus) && each->isEnabled() && each->isVisibleTo(pane))
            first = each;
    }
    if (first)
        first->setFocus(Qt::ShortcutFocusReason);
}

void MainWindow::JoinPaneButtons() {
    MainForm &form = program.frmMain;
    JoinPaneButton(ui->cmdKeyword, [&form] { form.cmdKeyword_Click(); });
    JoinPaneButton(ui->cmdDesc, [&form] { form.cmdDesc_Click(); });
    JoinPaneButton(ui->cmdEngines, [&form] { form.cmdEngines_Click(); });
    JoinPaneButton(ui->Command14, [&form] { form.Command14_Click(); });
    JoinPaneButton(ui->cmdSubmit, [&form] { form.cmdSubmit_Click(); });
    JoinPaneButton(ui->cmdOrder, [this] { program.statistics.cmdOrder_Click(); });
    JoinPaneButton(ui->Command5, [this] { program.webSearch.Command5_Click(); });
}

void MainWindow::JoinFrame() {
    MainFrame &frame = program.frame;
    connect(&frame, &MainFrame::VisibleChanged, this, &MainWindow::setVisible);
    connect(&frame, &MainFrame::CaptionChanged, this, &MainWindow::setWindowTitle);
    connect(&frame, &MainFrame::PaneShown, this, &MainWindow::ShowPane);
    connect(&frame, &MainFrame::PointerChanged, this, &MainWindow::ShowPointer);
    connect(&frame, &MainFrame::CloseRequested, this, &MainWindow::EndWanted);
    // The box that takes the focus out of the way has no widget: the window itself takes it.
    connect(&program.project.record.txtName, &Control::FocusRequested, ui->central,
            [this] { ui->central->setFocus(); });
    setWindowTitle(frame.Caption());
    ShowPane(frame.ShownPane());
}

void MainWindow::ShowPane(Pane pane) {
    for (const auto &[each, face] : panes) {
        const auto &[widget, button] = face;
        if (each == pane)
            ui->panes->setCurrentWidget(widget);
        if (!button)
            continue;
        button->setProperty("shown", each == pane);
        button->style()->unpolish(button);
        button->style()->polish(button);
    }
}

void MainWindow::ShowPointer(MousePointer pointer) {
    switch (pointer) {
    case MousePointer::Hourglass:
        return setCursor(Qt::WaitCursor);
    case MousePointer::Busy:
    case MousePointer::WaitingArrow:
        return setCursor(Qt::BusyCursor);
    case MousePointer::Arrow:
    case MousePointer::Default:
        return unsetCursor();
    }
}

void MainWindow::closeEvent(QCloseEvent *event) {
    event->ignore();
    emit EndWanted();
}

} // namespace lanterra
