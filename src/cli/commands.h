#pragma once

#include "cli/command.h"

namespace lanterra {

/// All commands in the order in which help lists them.
const QList<Command> &Commands();

// Each stands in a file of its name.
Command NewCommand();
Command SetCommand();
Command ShowCommand();
Command UrlsCommand();
Command SitesCommand();
Command SelectCommand();
Command CategoryCommand();
Command PreviewCommand();
Command SubmitCommand();
Command StatsCommand();
Command SearchCommand();
Command LinksCommand();
Command TopCommand();
Command SemiCommand();
Command Top9Command();
Command SitedbCommand();
Command CipherCommand();

} // namespace lanterra
