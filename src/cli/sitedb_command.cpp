#include "cli/commands.h"
#include "project/site_source_build.h"
#include "project/site_source_check.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

Outcome TellFindings(const QList<SiteFinding> &findings, Console &console) {
    for (const SiteFinding &finding : findings)
        console.TellLine(finding.Text());
    return {findings.isEmpty() ? ExitCode::Done : ExitCode::Failed};
}

Outcome Build(const CommandCall &call) {
    return TellFindings(BuildSiteFile(call.arguments.at(1), call.arguments.at(2)), call.console);
}

Outcome Dump(const CommandCall &call) {
    const SiteSourceReading reading = ReadSiteDatabase(call.arguments.at(1));
    if (reading.findings.isEmpty())
        call.console.PrintJson(SiteSourceText(reading.source));
    return TellFindings(reading.findings, call.console);
}

Outcome Check(const CommandCall &call) {
    const QList<SiteFinding> findings = CheckSiteFile(call.arguments.at(1));
    for (const SiteFinding &finding : findings)
        call.console.Print(finding.Text());
    return {findings.isEmpty() ? ExitCode::Done : ExitCode::Failed};
}

struct Task {
    QString name;
    qsizetype arguments; ///< with the task's own name
    Outcome (*run)(const CommandCall &call);
};

Outcome RunSitedb(const CommandCall &call) {
    const QList<Task> tasks{{u"build"_s, 3, Build}, {u"dump"_s, 2, Dump}, {u"check"_s, 2, Check}};
    for (const Task &task : tasks) {
        if (task.name == call.arguments.first() && task.arguments == call.arguments.size())
            return task.run(call);
    }
    return Outcome::WrongUse(u"Give build SOURCE OUT, dump FILE or check FILE."_s);
}

} // namespace

Command SitedbCommand() {
    return {.name = u"sitedb"_s,
            .usage = u"(build SOURCE OUT | dump FILE | check FILE)"_s,
            .summary = u"make, print or check a site database"_s,
            .options = {},
            .mostArguments = 3,
            .run = RunSitedb};
}

} // namespace lanterra
