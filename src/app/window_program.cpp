#include "app/window_program.h"

#include "platform/socket_http_client.h"

#include <QApplication>

namespace lanterra {

WindowProgram::WindowProgram(const QString &programFolder)
    : settings(IniSettingsStore::DefaultPath()), documents(queue, clock), help(nullptr),
      program({queue, clock, dialogs, forms, documents, printer, clipboard, settings,
               [] { return std::make_unique<SocketHttpClient>(); }, &help},
              programFolder),
      window(program, forms), splash(program.frmSplash), statusDialog(program.frmStatus, &window),
      settingsDialog(program.frmSettings, &window), webBrowserDialog(program.frmWebBrowser, &window),
      projectDialog(program.frmProjectDialog, &window), welcomeDialog(program.frmWelcome, &window),
      reportDialog(program.frmReport, &window), multiDialog(program.frmMulti, &window),
      supportDialog(program.frmTechSupp, &window), topEnginesDialog(program.frmTop9, &window) {
    Show(ModalForm::Settings, settingsDialog);
    Show(ModalForm::WebBrowser, webBrowserDialog);
    Show(ModalForm::Welcome, welcomeDialog);
    Show(ModalForm::Report, reportDialog);
    Show(ModalForm::TechSupp, supportDialog);
    forms.SetForm(ModalForm::ProjectDialog, [this] {
        program.frmProjectDialog.Load();
        projectDialog.ExecWhileVisible();
    });
    forms.SetForm(ModalForm::Multi, [this] {
        program.frmMulti.Activate();
        multiDialog.ExecWhileVisible();
    });
    connect(&window, &MainWindow::EndWanted, this, &WindowProgram::End);
}

void WindowProgram::Run(const QString &commandLine) {
    if (program.startUp.Run(commandLine) && !queue.Closing())
        QApplication::exec();
    program.shutDown.Run();
}

void WindowProgram::End() {
    const bool endsAlready = queue.Closing();
    queue.Close();
    while (QWidget *const menu = QApplication::activePopupWidget())
        menu->close();
    for (QWidget *top : QApplication::topLevelWidgets()) {
        auto *const dialog = qobject_cast<QDialog *>(top);
        // The Cancel of the progress would cut short a save, which goes on while the program ends.
        if (dialog && dialog != &statusDialog && dialog->isVisible())
            dialog->reject();
    }
    // Not quit, which closes the windows first, that of the progress too. And not again: the loops that begin
    // behind the first time are those of the questions on the way down.
    if (!endsAlready)
        QApplication::exit();
}

} // namespace lanterra
