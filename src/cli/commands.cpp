#include "cli/commands.h"

namespace lanterra {

const QList<Command> &Commands() {
    static const QList<Command> commands{
        NewCommand(),    SetCommand(),      ShowCommand(),    UrlsCommand(),   SitesCommand(),
        SelectCommand(), CategoryCommand(), PreviewCommand(), SubmitCommand(), StatsCommand(), TopCommand(),
        SearchCommand(), LinksCommand(),    SitedbCommand(),  CipherCommand()};
    return commands;
}

} // namespace lanterra
