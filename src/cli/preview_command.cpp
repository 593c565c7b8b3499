#include "cli/commands.h"
#include "cli/curl_command.h"
#include "cli/project_session.h"
#include "cli/site_rows.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

std::vector<int> SelectedRows(const ListBox &sites) {
    std::vector<int> rows;
    for (int row = 0; row < sites.ListCount(); ++row) {
        if (sites.Selected(row))
            rows.push_back(row);
    }
    return rows;
}

void PrintRequest(const PreviewedRequest &request, bool isOneOfSeveral, Console &console) {
    if (isOneOfSeveral)
        console.Print(u"==> "_s + request.name + u" <=="_s);
    console.PrintBytes(request.Bytes());
    if (isOneOfSeveral)
        console.PrintBytes("\n\n");
}

Outcome PrintRequests(const std::vector<int> &rows, const CommandCall &call, Program &program) {
    RequestPreview preview(program);
    Outcome outcome;
    for (const int row : rows) {
        const PreviewedRequest request = preview.Of(row);
        if (!request.problem.isEmpty()) {
            call.console.Tell(u"%1: %2."_s.arg(request.name, request.problem));
            outcome.code = ExitCode::Failed;
        } else if (call.options.isSet(u"curl"_s)) {
            call.console.PrintBytes(CurlCommand(request, preview.Proxy()) + '\n');
        } else {
            PrintRequest(request, rows.size() > 1, call.console);
        }
    }
    return outcome;
}

Outcome RunPreview(const CommandCall &call) {
    ProjectSession session(call);
    if (Outcome opened = session.Open(call.arguments.first()); !opened.Good())
        return opened;
    const QStringList names = call.arguments.mid(1);
    std::vector<int> rows;
    if (Outcome found = FindSites(names, session.program.project, rows); !found.Good())
        return found;
    if (names.isEmpty())
        rows = SelectedRows(session.program.project.lists.List1);
    if (rows.empty())
        call.console.Tell(u"No site is selected."_s);
    return PrintRequests(rows, call, session.program);
}

} // namespace

Command PreviewCommand() {
    return {.name = u"preview"_s,
            .usage = u"FILE [SITE ...] [--curl]"_s,
            .summary = u"print the requests of a run without sending them"_s,
            .options = {{u"curl"_s, u"print a curl command for each request instead"_s}},
            .run = RunPreview};
}

} // namespace lanterra
