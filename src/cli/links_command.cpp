#include "cli/commands.h"
#include "cli/search_transfer.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

Outcome RunLinks(const CommandCall &call) {
    ProjectSession session(call);
    WebSearch &search = session.program.webSearch;
    search.txtlink.SetText(call.arguments.first());
    return FetchAnswer(call, search, [&search] { search.cmdlink_Click(); });
}

} // namespace

Command LinksCommand() {
    return {.name = u"links"_s,
            .usage = u"URL [--json]"_s,
            .summary = u"ask who links to an address and keep the answer"_s,
            .options = {{u"json"_s, u"print path and size of the answer as a JSON object"_s}},
            .mostArguments = 1,
            .run = RunLinks};
}

} // namespace lanterra
