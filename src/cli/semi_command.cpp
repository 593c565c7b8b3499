#include "cli/commands.h"
#include "cli/page_output.h"
#include "cli/project_session.h"
#include "cli/run_output.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

Outcome RunSemi(const CommandCall &call) {
    ProjectSession session(call);
    if (Outcome opened = session.Open(call.arguments.first()); !opened.Good())
        return opened;
    Program &program = session.program;
    const bool written = program.semiPage.RunMode();
    if (session.HasShownBox())
        return ChecksRefusal(program.project.record);
    return PrintPage(call, program.semiPage.Path(), written);
}

} // namespace

Command SemiCommand() {
    return {.name = u"semi"_s,
            .usage = u"FILE [--json]"_s,
            .summary = u"write the page of ready-filled forms"_s,
            .options = {{u"json"_s, u"print the path in a JSON object"_s}},
            .mostArguments = 1,
            .run = RunSemi};
}

} // namespace lanterra
