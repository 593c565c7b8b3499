#include "cli/project_session.h"

#include "project/site_version.h"
#include "settings/program_folder.h"
#include "support/file_names.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QString PreparedFolder(const CommandCall &call) {
    const ProgramFolder folder(ProgramFolder::Places::OfSystem(call.home));
    if (!folder.Prepare(SiteDatabaseVersion))
        call.console.Tell(u"Not all installed files could be copied to %1."_s.arg(folder.Path()));
    return folder.Path();
}

Outcome NameRefusal(const QString &file) {
    return file.endsWith(".rts"_L1, Qt::CaseInsensitive)
               ? Outcome{}
               : Outcome::WrongUse(u"The name of a project ends in .rts, not so: %1."_s.arg(file));
}

QStringList FieldsToCut(const ProjectRecord &record) {
    QStringList names;
    for (const ProjectRecord::TextField &field : record.TextFields()) {
        if (field.cutOnSave && field.box->Text().size() > ProjectRecord::fieldSize)
            names << field.name;
    }
    return names;
}

} // namespace

ProjectSession::ProjectSession(const CommandCall &commandCall)
    : call(commandCall), dialogs(call.console, call.answer),
      program({call.doors.queue, call.doors.clock, dialogs, forms, documents, printer, clipboard,
               call.doors.settings, call.doors.makeClient},
              PreparedFolder(call)) {
    forms.SetRun(program.run);
    program.recentFile.Load();
    program.frmSettings.Load();
    // A command looks for no newer version: its box would be one more answer of the command.
    program.frmSettings.check_for_program_upgrade.SetValue(0);
    program.frmWebBrowser.Load();
}

Outcome ProjectSession::Open(const QString &file) {
    if (Outcome refusal = NameRefusal(file); !refusal.Good())
        return refusal;
    if (!FileExists(file))
        return Outcome::Failed(u"There is no project %1."_s.arg(file));
    Project &project = program.project;
    project.path.Base = QDir().absoluteFilePath(file);
    if (!project.database.BindProject())
        return Outcome::Failed(u"%1 can't be opened: %2"_s.arg(file, project.database.Data2.Failure()));
    if (project.database.Data2.RowCount() == 0)
        return Outcome::Failed(u"%1 is no project: it holds no sites."_s.arg(file));
    program.files.OpenProject(project.path.Base);
    if (program.files.Ended())
        return Outcome::Refused(
            u"%1 now holds the new sites, none of them selected; give the command again."_s.arg(file));
    if (const QString &notice = program.frame.Notice.Caption(); !notice.isEmpty())
        call.console.Tell(notice);
    return {};
}

Outcome ProjectSession::Create(const QString &file) {
    if (Outcome refusal = NameRefusal(file); !refusal.Good())
        return refusal;
    ProjectPath &path = program.project.path;
    if (!program.project.database.BindMaster())
        return Outcome::Failed(
            u"The site database %1 can't be used: %2 Name its folder with --home DIR, or make one with "
            "\"lanterra-cli sitedb build\"."_s.arg(path.MasterFile(),
                                                   program.project.database.Data1.Failure()));
    path.Base = QDir().absoluteFilePath(file);
    path.SplitProjectPath();
    if (FileExists(path.Base) && call.answer != BoxAnswer::Yes)
        return Outcome::Refused(u"%1 exists; --yes replaces it."_s.arg(path.Base));
    const StoreResult result = program.files.CreateProject(path.Base);
    return result.stored ? Outcome{} : NotStored(result);
}

Outcome ProjectSession::Save() {
    const QStringList cut = FieldsToCut(program.project.record);
    const StoreResult result = program.files.SaveProject(QString());
    if (!result.stored)
        return NotStored(result);
    for (const QString &name : cut)
        call.console.Tell(u"%1 was cut to 255 characters."_s.arg(name));
    for (const QString &name : result.refused)
        call.console.Tell(u"%1 holds more than 255 characters and was not stored."_s.arg(name));
    return {cut.isEmpty() && result.refused.isEmpty() ? ExitCode::Done : ExitCode::Failed};
}

Outcome ProjectSession::NotStored(const StoreResult &result) const {
    return Outcome::Failed(u"%1 could not be saved: %2"_s.arg(program.project.path.Base, result.failure));
}

} // namespace lanterra
