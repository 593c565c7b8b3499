#include "cli/commands.h"
#include "cli/project_session.h"
#include "cli/site_rows.h"
#include "cli/text_table.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QJsonArray SitesAsJson(const ListBox &sites, const QStringList &kinds) {
    QJsonArray array;
    for (int row = 0; row < sites.ListCount(); ++row)
        array.append(QJsonObject{{u"number"_s, row + 1},
                                 {u"selected"_s, sites.Selected(row)},
                                 {u"kind"_s, kinds.at(row)},
                                 {u"name"_s, sites.Item(row)}});
    return array;
}

void PrintSites(const ListBox &sites, const QStringList &kinds, Console &console) {
    const int digits = static_cast<int>(QString::number(sites.ListCount()).size());
    QList<QStringList> rows;
    for (int row = 0; row < sites.ListCount(); ++row)
        rows << QStringList{u"%1"_s.arg(row + 1, digits), sites.Selected(row) ? u"[x]"_s : u"[ ]"_s,
                            kinds.at(row), sites.Item(row)};
    for (const QString &line : AlignedLines(rows))
        console.Print(line);
}

Outcome RunSites(const CommandCall &call) {
    ProjectSession session(call);
    if (Outcome opened = session.Open(call.arguments.first()); !opened.Good())
        return opened;
    Project &project = session.program.project;
    const QStringList kinds = SiteKinds(project);
    if (call.options.isSet(u"json"_s))
        call.console.PrintJson(QJsonDocument(SitesAsJson(project.lists.List1, kinds)));
    else
        PrintSites(project.lists.List1, kinds, call.console);
    return {};
}

} // namespace

Command SitesCommand() {
    return {.name = u"sites"_s,
            .usage = u"FILE [--json]"_s,
            .summary = u"list the sites: number, mark, kind, name"_s,
            .options = {{u"json"_s, u"print one JSON array"_s}},
            .mostArguments = 1,
            .run = RunSites};
}

} // namespace lanterra
