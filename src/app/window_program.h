#pragma once

#include "platform/ini_settings_store.h"
#include "platform/process_document_opener.h"
#include "platform/qt_event_queue.h"
#include "platform/system_clock.h"
#include "shell/program.h"
#include "window/desktop_clipboard.h"
#include "window/desktop_printer.h"
#include "window/help_window.h"
#include "window/main_window.h"
#include "window/multi_dialog.h"
#include "window/project_start_dialog.h"
#include "window/report_dialog.h"
#include "window/settings_dialog.h"
#include "window/splash_window.h"
#include "window/status_dialog.h"
#include "window/support_dialog.h"
#include "window/top_engines_dialog.h"
#include "window/web_browser_dialog.h"
#include "window/welcome_dialog.h"
#include "window/widget_dialogs.h"
#include "window/widget_forms.h"

namespace lanterra {

/// The program behind real doors and with its windows. A QApplication must exist.
class WindowProgram : public QObject {
    Q_OBJECT

public:
    /// `programFolder` holds the master database.
    explicit WindowProgram(const QString &programFolder);

    /// Starts the program, works until its end and takes it down. `commandLine` is the path of a project or
    /// empty.
    void Run(const QString &commandLine);

    /// Asks for the end from outside: the close box, a signal, the end of the desktop's session. Returns at
    /// once; everything that waits returns first, and dialogs that are up are closed as by Escape.
    void End();

private:
    template <class Dialog>
    void Show(ModalForm form, Dialog &dialog) {
        forms.SetForm(form, [&dialog] { dialog.ExecWhileVisible(); });
    }

    QtEventQueue queue;
    SystemClock clock;
    IniSettingsStore settings;
    ProcessDocumentOpener documents;
    WidgetDialogs dialogs;
    WidgetForms forms;
    DesktopPrinter printer;
    DesktopClipboard clipboard;
    HelpWindow help;

public:
    Program program; ///< made behind the doors that it uses

private:
    MainWindow window;
    SplashWindow splash;
    StatusDialog statusDialog;
    SettingsDialog settingsDialog;
    WebBrowserDialog webBrowserDialog;
    ProjectStartDialog projectDialog;
    WelcomeDialog welcomeDialog;
    ReportDialog reportDialog;
    MultiDialog multiDialog;
    SupportDialog supportDialog;
    TopEnginesDialog topEnginesDialog;
};

} // namespace lanterra
