#include "cli/commands.h"
#include "cli/name_lookup.h"
#include "cli/page_output.h"
#include "cli/project_session.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

/// Switches the engines off that are not named; all stay on if none is.
Outcome ChooseEngines(QMap<QString, int> &checks, const QStringList &names) {
    const QStringList engines = checks.keys();
    for (int &check : checks)
        check = names.isEmpty() ? 1 : 0;
    for (const QString &name : names) {
        const qsizetype row = IndexOfName(engines, name);
        if (row < 0)
            return Outcome::Failed(UnknownName(u"engine"_s, name, engines));
        checks[engines[row]] = 1;
    }
    return {};
}

Outcome RunTop9(const CommandCall &call) {
    ProjectSession session(call);
    if (Outcome opened = session.Open(call.arguments.first()); !opened.Good())
        return opened;
    Top9Page &page = session.program.top9Page;
    if (Outcome chosen = ChooseEngines(page.checks, call.arguments.mid(1)); !chosen.Good())
        return chosen;
    const bool written = page.WriteTop9Page();
    return PrintPage(call, page.Path(), written);
}

} // namespace

Command Top9Command() {
    return {.name = u"top9"_s,
            .usage = u"FILE [ENGINE ...] [--json]"_s,
            .summary = u"write the page that submits to nine engines in frames"_s,
            .options = {{u"json"_s, u"print the path in a JSON object"_s}},
            .run = RunTop9};
}

} // namespace lanterra
