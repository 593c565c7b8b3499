#include "shell/start_up.h"

#include "support/file_names.h"
#include "support/numbers.h"

using namespace Qt::StringLiterals;

namespace lanterra {

bool StartUp::Run(const QString &commandLine) {
    parts.frame.SetPointer(MousePointer::Hourglass);
    parts.frmSplash.SetVisible(true);
    finished = Load(commandLine);
    parts.frmSplash.SetVisible(false);
    parts.frame.SetPointer(MousePointer::Default);
    return finished;
}

bool StartUp::Load(const QString &commandLine) {
    ResetUrls();
    parts.project.record.chkMultiSameDesc.SetValue(parts.options.Number(option::sameDescription).value_or(0));
    WelcomeNewUser();
    if (Closing())
        return false;
    ForgetStartupOnce();
    parts.frame.SetPointer(MousePointer::Default);
    parts.frmSplash.SetVisible(false);
    parts.frame.ShowPane(Pane::FrameAbout);
    LoadOptionForms();
    parts.recent.Load();
    TakeLastProject();
    OpenDatabases(commandLine);
    if (Closing())
        return false;
    parts.project.path.ComputeStatsFilePath();
    parts.frame.SetVisible(true);
    FillEntries();
    parts.templates.Read(parts.project.path.AppPath());
    return true;
}

void StartUp::ResetUrls() {
    parts.project.record.SetMultiUrlMode(false);
    parts.project.record.MultiUrlUpper = 0;
    parts.run.urlCounter = 0;
}

void StartUp::WelcomeNewUser() {
    if (!parts.options.Text(option::welcomeSeen).isEmpty())
        return;
    parts.frmWelcome.Show();
    if (parts.frmWelcome.WelcomeHide)
        parts.options.Set(option::welcomeSeen, u"1"_s);
}

// The first start forgets the last project of an installation before this one.
void StartUp::ForgetStartupOnce() {
    if (parts.options.Text(option::startupCleared).isEmpty())
        parts.options.ForgetStartup();
    parts.options.Set(option::startupCleared, option::startupCleared.firstValue.toString());
}

// Their boxes are the options of the program from here on, although both forms stay hidden.
void StartUp::LoadOptionForms() {
    parts.frmSettings.Load();
    parts.frmWebBrowser.Load();
}

void StartUp::TakeLastProject() {
    const QString wanted = parts.options.Text(option::loadLastProject);
    if (wanted != u"0" && wanted != u"1")
        parts.options.Set(option::loadLastProject, u"0"_s);
    parts.project.path.Base = wanted == u"1" ? parts.options.Text(option::lastProject) : QString();
}

// A project that ChooseStartProject opens is loaded twice. A new one has its lists only from the load here.
void StartUp::OpenDatabases(const QString &commandLine) {
    Project &project = parts.project;
    parts.frame.SetPointer(MousePointer::Busy);
    project.database.BindMaster();
    if (!FileExists(project.path.Base))
        project.path.Base.clear();
    if (project.path.Base.isEmpty())
        parts.startProject.ChooseStartProject(commandLine);
    else
        project.database.BindProject();
    if (!Closing())
        parts.files.LoadProject();
    parts.frame.SetPointer(MousePointer::Default);
}

void StartUp::FillEntries() {
    Project &project = parts.project;
    project.lists.List2.SetListIndex(0);
    parts.categories.List2_Click();
    if (project.record.txtLimit.Text().isEmpty())
        project.record.txtLimit.SetText(u"20"_s);
    parts.frmMain.helpFile = project.path.AppPath() + u"lanterra.hlp"_s;
    LoadProxy();
    project.record.txtName.SetFocus();
    MarkFixedLists();
    parts.proxy.ApplyProxySettings();
    if (IsBlank(project.record.Combo2.Text()))
        project.record.Combo2.SetText(u"Miscellaneous"_s);
    for (ListBox *list : {&project.lists.List5, &project.lists.lstTopEngines, &project.lists.List1})
        list->SetListIndex(0);
}

// Values of the window that were never stored leave the boxes of the proxy as the settings form has them.
void StartUp::LoadProxy() {
    if (parts.windowSettings.Load())
        parts.frmSettings.LoadProxyTexts();
}

void StartUp::MarkFixedLists() {
    parts.project.lists.List5.SetAllSelected(true);
    parts.project.lists.lstTopEngines.SetAllSelected(true);
}

} // namespace lanterra
