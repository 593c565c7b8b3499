#include "cli/commands.h"
#include "cli/project_session.h"
#include "cli/site_rows.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

struct BulkChoice {
    QString option;
    QString description;
    void (SiteSelection::*press)();
};

const QList<BulkChoice> &BulkChoices() {
    static const QList<BulkChoice> choices{
        {u"all"_s, u"select all sites"_s, &SiteSelection::Command4_Click},
        {u"none"_s, u"select no site"_s, &SiteSelection::Command3_Click},
        {u"invert"_s, u"turn every mark round"_s, &SiteSelection::Command6_Click},
        {u"directories"_s, u"select the directories alone"_s, &SiteSelection::mnuEngDir_Click},
        {u"engines"_s, u"select the search engines alone"_s, &SiteSelection::mnuEngEng_Click},
        {u"lists"_s, u"select the link lists alone"_s, &SiteSelection::mnuEngLnk_Click},
        {u"registered"_s, u"select the sites that took the page before"_s, &SiteSelection::mnuEngReg_Click},
        {u"not-registered"_s, u"select the sites that have not yet taken it"_s,
         &SiteSelection::mnuEngNot_Click}};
    return choices;
}

QList<BulkChoice> ChosenOnes(const CommandCall &call) {
    QList<BulkChoice> chosen;
    for (const BulkChoice &choice : BulkChoices()) {
        if (call.options.isSet(choice.option))
            chosen << choice;
    }
    return chosen;
}

Outcome SelectNamed(const QStringList &names, Project &project) {
    std::vector<int> rows;
    if (Outcome found = FindSites(names, project, rows); !found.Good())
        return found;
    project.lists.List1.SetAllSelected(false);
    for (const int row : rows)
        project.lists.List1.SetSelected(row, true);
    return {};
}

Outcome RunSelect(const CommandCall &call) {
    const QList<BulkChoice> chosen = ChosenOnes(call);
    const QStringList names = call.arguments.mid(1);
    if (chosen.size() + (names.isEmpty() ? 0 : 1) != 1)
        return Outcome::WrongUse(u"Give either one option that selects or the names of sites."_s);
    ProjectSession session(call);
    if (Outcome opened = session.Open(call.arguments.first()); !opened.Good())
        return opened;
    if (!chosen.isEmpty())
        (session.program.siteSelection.*chosen.first().press)();
    else if (Outcome selected = SelectNamed(names, session.program.project); !selected.Good())
        return selected;
    Outcome saved = session.Save();
    if (saved.Good())
        call.console.Print(session.program.project.lists.lblSelected.Caption());
    return saved;
}

} // namespace

Command SelectCommand() {
    QList<QCommandLineOption> options;
    for (const BulkChoice &choice : BulkChoices())
        options << QCommandLineOption(choice.option, choice.description);
    return {.name = u"select"_s,
            .usage =
                u"FILE (--all | --none | --invert | --directories | --engines | --lists | --registered | "
                "--not-registered | NAME ...)"_s,
            .summary = u"choose the sites of a run"_s,
            .options = options,
            .run = RunSelect};
}

} // namespace lanterra
