#include "shell/program.h"

#include "project/site_schema.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

/// The file that takes the answers which nothing reads.
QString ScratchFile(const Project &project) { return project.path.AppPath() + u"tmp.mth"_s; }

} // namespace

Program::Program(const Doors &doors, const QString &programFolder)
    : options(doors.settings), hosts(programFolder), databaseFiles(SiteSchema()),
      project(programFolder, databaseFiles), recentFile(doors.settings),
      windowSettings(options, project.path.Base), frmSettings(options, windowSettings, doors.dialogs),
      frmWebBrowser(options, doors.dialogs, project.path.Base), proxy(frmSettings),
      viewer(frmWebBrowser.BrowserPath, doors.documents, doors.dialogs),
      files({project, frame, frmStatus, recentFile, windowSettings, doors.dialogs, doors.queue}),
      startProject(project, files, doors.forms, doors.dialogs, doors.queue),
      frmProjectDialog(project.path, files, recentFile, frmSettings.LoadLastProject, doors.dialogs),
      entry(project.record, doors.dialogs), siteSelection(project, doors.queue),
      categorySelection(project, doors.dialogs, doors.queue),
      siteDatabaseUpdate(
          {project, frame, frmStatus, files, siteSelection, options, doors.dialogs, doors.queue}),
      report(project, result, doors.clock, doors.queue),
      statistics(project, frame, doors.dialogs, doors.queue, doors.clock),
      reportDocuments(project.path, viewer),
      frmReport({project, frame, result, windowSettings, doors.printer, doors.clipboard, doors.dialogs,
                 doors.forms, doors.queue, doors.clock}),
      siteListPrint(project.lists, doors.printer), outcomes(result, project.lists),
      runEstimate(result, doors.clock),
      channels({submitForm, result, project.lists, project.record.txtLimit, doors.queue, doors.clock},
               doors.makeClient),
      collector(project, files, frmStatus, doors.queue),
      counter(doors.makeClient(), hosts, options, ScratchFile(project)),
      run({project, frame, frmStatus, files, frmSettings, proxy, channels, submitForm, collector, counter,
           result, report, statistics, viewer, doors.dialogs, doors.forms, doors.queue, doors.clock}),
      modes(frame), urlSlots(project.record), frmMulti(project.record, run, doors.dialogs),
      multiUrlJob({project, frame, urlSlots, run, result, viewer, doors.dialogs, doors.forms, doors.queue,
                   doors.clock}),
      semiPage({project, frame, result, collector, hosts, viewer, run}),
      top9Page({project, frame, result, hosts, viewer}),
      frmWelcome({hosts, options, viewer, doors.dialogs, doors.forms, ScratchFile(project)},
                 doors.makeClient()),
      frmMain({project, frame, files, reportDocuments, submitForm, frmSettings, frmWebBrowser, frmWelcome,
               modes, viewer, hosts, doors.forms, doors.dialogs, doors.help}),
      webSearch({project, frame, hosts, proxy, viewer, doors.dialogs}, doors.makeClient()),
      frmTechSupp({hosts, proxy, frame, frmMain.VerzijaPrograma, viewer, doors.dialogs, doors.forms,
                   project.path.AppPath()},
                  doors.makeClient()),
      UpgradeIt1({hosts, proxy, viewer, doors.dialogs}, doors.makeClient()),
      inetDownload(frmStatus, doors.dialogs, doors.queue, doors.makeClient()),
      frmTop9({project.path.AppPath() + u"engine.dat"_s, frame, run, doors.dialogs, doors.queue, doors.clock},
              doors.makeClient),
      engineReport({project, frame, frmTop9, reportTemplates, doors.queue, doors.clock}),
      topEngines({project, frame, urlSlots, run, result, files, frmTop9, engineReport, frmSettings, viewer,
                  doors.dialogs, doors.queue, doors.clock}),
      startUp({project, frame, frmSplash, frmWelcome, frmMain, frmSettings, frmWebBrowser, options,
               windowSettings, proxy, recentFile, files, startProject, categorySelection, run,
               reportTemplates, doors.queue}),
      shutDown({startUp, project, frame, files, options, doors.dialogs, ScratchFile(project)}) {
    files.SetImport(&siteDatabaseUpdate);
    QObject::connect(&files, &ProjectFiles::ProgramEnds, &frame, &MainFrame::RequestClose);
    QObject::connect(&proxy, &ProxySettings::ProxyGiven, &frmTop9.Spider1, &Spider::SetProxy);
    modes.Join({.topEngines = [this] { topEngines.SubmitTopEngines(); },
                .multipleUrls = [this] { multiUrlJob.SubmitMultipleUrls(); },
                .semiPage = [this] { semiPage.RunMode(); },
                .upgradeCheck = [this] { UpgradeIt1.CheckNow(); },
                .supportForm = [this] { frmTechSupp.Show(); }});
    run.SetModes(&modes);
    run.SetUpgradeCheck(&UpgradeIt1);
    multiUrlJob.SetUpgradeCheck(&UpgradeIt1);
    topEngines.SetUpgradeCheck(&UpgradeIt1);
    QObject::connect(&UpgradeIt1, &UpgradeIt::ExitForUpgrade, &frame, &MainFrame::RequestClose);
    for (int number = 1; number <= channelCount; ++number)
        proxy.AddClient(channels.Channel(number).Client());
}

} // namespace lanterra
