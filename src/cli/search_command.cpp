#include "cli/commands.h"
#include "cli/name_lookup.h"
#include "cli/search_transfer.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

Outcome RunSearch(const CommandCall &call) {
    ProjectSession session(call);
    WebSearch &search = session.program.webSearch;
    const QStringList &engines = search.cobEngine.Entries();
    const qsizetype row = IndexOfName(engines, call.arguments.first());
    if (row < 0)
        return Outcome::Failed(UnknownName(u"search engine"_s, call.arguments.first(), engines));
    search.cobEngine.SetText(engines.at(row));
    search.txtKeywords.SetText(call.arguments.mid(1).join(u' '));
    return FetchAnswer(call, search, [&search] { search.cmdFind_Click(); });
}

} // namespace

Command SearchCommand() {
    return {.name = u"search"_s,
            .usage = u"ENGINE WORD ... [--json]"_s,
            .summary = u"put a query to a search engine and keep its answer"_s,
            .options = {{u"json"_s, u"print path and size of the answer as a JSON object"_s}},
            .leastArguments = 2,
            .run = RunSearch};
}

} // namespace lanterra
