#include "cli/commands.h"

namespace lanterra {

const QList<Command> &Commands() {
    static const QList<Command> commands{
        NewCommand(),    SetCommand(),      ShowCommand(),    UrlsCommand(),   SitesCommand(),
        SelectCommand(), CategoryCommand(), PreviewCommand(), SubmitCommand(), StatsCommand(),
        SearchCommand(), LinksCommand(),    TopCommand(),     SemiCommand(),   Top9Command(),
        SitedbCommand(), CipherCommand()};
    return commands;
}

} // namespace lanterra
