#include "tests/soak/soaked_program.h"

#include "platform/socket_http_client.h"
#include "project/site_source_build.h"
#include "tests/example_project.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QJsonObject HabitsOfSites() {
    QFile file(u":/park/site_habits.json"_s);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

bool AnswersAtOnce(const QJsonObject &habits) {
    return !habits.contains("delay"_L1) && habits["behaviour"_L1].toString() != "silence"_L1;
}

} // namespace

bool SoakedProgram::Start() {
    if (!server.Start(0) || !BuildMaster())
        return false;
    program = std::make_unique<Program>(
        doors.With(queue, clock, doors.settings, [] { return std::make_unique<SocketHttpClient>(); }),
        home.path());
    program->frmSettings.Load();
    doors.forms.onMenu[PopupMenu::Submit] = [this] { program->run.mnuAuto_Click(); };
    if (!program->startProject.CreateProject(u"Soak"_s))
        return false;
    program->files.LoadProject();
    FillInExample(program->project.record, QStringLiteral(LANTERRA_DATA_DIR "/example_project.txt"));
    program->project.lists.List1.SetAllSelected(true);
    return program->categorySelection.SelectByKeyword(QString());
}

bool SoakedProgram::BuildMaster() const {
    const QJsonObject habits = HabitsOfSites();
    SiteSource source = ReadSiteSource(QStringLiteral(LANTERRA_DATA_DIR "/sites.json")).source;
    source.sites.removeIf([&habits](const SiteEntry &site) {
        const QString folder = QUrl(site.action).path().section(u'/', 1, 1);
        return !AnswersAtOnce(habits[folder].toObject());
    });
    for (SiteEntry &site : source.sites)
        site.action = server.Origin() + QUrl(site.action).path();
    return BuildSiteDatabase(source, home.filePath(u"ng.dll"_s));
}

QString SoakedProgram::Run() {
    program->run.cmdStart_Click();
    const RunResult &result = program->result;
    QStringList words{u"%1 successful"_s.arg(result.SuccessfulCount()),
                      u"%1 failed"_s.arg(result.FailedCount())};
    words += result.notStored;
    if (result.SuccessfulCount() + result.FailedCount() != program->project.lists.List1.SelCount())
        words += u"sites without a verdict"_s;
    for (const MessageBox &box : doors.dialogs.boxes)
        words += box.text;
    doors.dialogs.answers.push_back(BoxAnswer::Yes);
    program->statistics.Command10_Click();
    doors.dialogs.boxes.clear();
    return words.join(u", "_s);
}

} // namespace lanterra
