#pragma once

#include "database/database_files.h"
#include "modes/multi_form.h"
#include "modes/multi_url_job.h"
#include "modes/semi_page.h"
#include "modes/top9_page.h"
#include "modes/top_engines.h"
#include "project/category_selection.h"
#include "project/entry_handlers.h"
#include "project/project_dialog.h"
#include "project/project_files.h"
#include "project/site_database_update.h"
#include "project/site_selection.h"
#include "project/start_project.h"
#include "reports/outcome_table.h"
#include "reports/report_documents.h"
#include "reports/report_form.h"
#include "reports/site_list_print.h"
#include "reports/statistics.h"
#include "research/web_search.h"
#include "settings/web_browser_form.h"
#include "shell/inet_download.h"
#include "shell/main_form.h"
#include "shell/shut_down.h"
#include "shell/start_up.h"
#include "shell/support_form.h"
#include "shell/upgrade_it.h"
#include "submission/run_estimate.h"
#include "submission/submission_run.h"

namespace lanterra {

/// The doors through which one program reaches the world. All must outlive it.
struct Doors {
    EventQueue &queue;
    const Clock &clock;
    Dialogs &dialogs;
    Forms &forms;
    DocumentOpener &documents;
    Printer &printer;
    Clipboard &clipboard;
    SettingsStore &settings;
    ChannelBank::ClientFactory makeClient;
    HelpViewer *help = nullptr; ///< none on a face that shows no help
};

/// One running program without its faces: every form's model and every procedure, made in the order in which
/// they need each other. The window, the command line and tests work its controls and handlers. The window
/// calls startUp.Run, works until EventQueue::Closing, and then calls shutDown.Run; the command line has a
/// start and an end of its own.
class Program {
public:
    /// `programFolder` holds the master database.
    Program(const Doors &doors, const QString &programFolder);

    Options options;
    Hosts hosts;
    DatabaseFiles databaseFiles;
    Project project;
    MainFrame frame;
    StatusForm frmStatus;
    RecentFile recentFile;

    WindowSettings windowSettings;
    SettingsForm frmSettings;
    WebBrowserForm frmWebBrowser;
    ProxySettings proxy;
    DocumentViewer viewer;

    ProjectFiles files;
    StartProject startProject;
    ProjectDialog frmProjectDialog;
    EntryHandlers entry;
    SiteSelection siteSelection;
    CategorySelection categorySelection;
    SiteDatabaseUpdate siteDatabaseUpdate;

    RunResult result;
    SubmissionReport report;
    Statistics statistics;
    ReportDocuments reportDocuments;
    ReportForm frmReport;
    SiteListPrint siteListPrint;
    OutcomeTable outcomes;
    RunEstimate runEstimate;

    SubmitForm submitForm;
    ChannelBank channels;
    RequestCollector collector;
    HitCounter counter;
    SubmissionRun run;
    ModeCommands modes;
    UrlSlots urlSlots;
    MultiForm frmMulti;
    MultiUrlJob multiUrlJob;
    SemiPage semiPage;
    Top9Page top9Page;

    WelcomeForm frmWelcome;
    MainForm frmMain;
    WebSearch webSearch;
    SupportForm frmTechSupp;
    UpgradeIt UpgradeIt1;
    InetDownload inetDownload;
    SplashForm frmSplash;
    ReportTemplates reportTemplates;
    TopEnginesForm frmTop9;
    EngineReport engineReport;
    TopEngines topEngines;
    StartUp startUp;
    ShutDown shutDown;
};

} // namespace lanterra
