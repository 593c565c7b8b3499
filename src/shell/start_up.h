#pragma once

#include "ports/forms.h"
#include "project/category_selection.h"
#include "project/start_project.h"
#include "reports/report_templates.h"
#include "settings/proxy_settings.h"
#include "settings/web_browser_form.h"
#include "shell/main_form.h"
#include "shell/splash_form.h"
#include "submission/submission_run.h"

namespace lanterra {

/// Brings the program up, in one fixed order: the options, the project that is opened in the middle of it,
/// the lists. docs/start-and-stop.md tells the order. The program can be closed meanwhile, also by an import
/// into the project; the start then ends behind the form that was up.
class StartUp {
public:
    struct Parts {
        Project &project;
        MainFrame &frame;
        SplashForm &frmSplash;
        WelcomeForm &frmWelcome;
        MainForm &frmMain;
        SettingsForm &frmSettings;
        WebBrowserForm &frmWebBrowser;
        Options &options;
        WindowSettings &windowSettings;
        ProxySettings &proxy;
        RecentFile &recent;
        ProjectFiles &files;
        StartProject &startProject;
        CategorySelection &categories;
        SubmissionRun &run;
        ReportTemplates &templates;
        const EventQueue &queue;
    };

    /// All parts must outlive this.
    explicit StartUp(const Parts &theParts) : parts(theParts) {}

    /// Starts the program. `commandLine` is the path of a project or empty; it counts only if no last project
    /// is loaded. False if the program was closed before the main window was there. Yields.
    bool Run(const QString &commandLine);

    /// Whether the start came to its end, so that the options and the project are those of the user.
    bool Finished() const { return finished; }

private:
    bool Closing() const { return parts.queue.Closing() || parts.files.Ended(); }
    bool Load(const QString &commandLine);
    void ResetUrls();
    void WelcomeNewUser();
    void ForgetStartupOnce();
    void LoadOptionForms();
    void TakeLastProject();
    void OpenDatabases(const QString &commandLine);
    void FillEntries();
    void LoadProxy();
    void MarkFixedLists();

    Parts parts;
    bool finished = false;
};

} // namespace lanterra
