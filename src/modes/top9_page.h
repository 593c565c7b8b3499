#pragma once

#include "modes/project_page.h"
#include "settings/hosts.h"
#include "support/whole_file.h"

#include <QMap>

namespace lanterra {

/// Writes top9single.htm: a frameset that loads the submission addresses of nine search engines side by side,
/// with the same addresses as links for browsers without frames.
///
/// The page stands in modes/top9/page.htm, the addresses in engines.txt beside it. Nothing is encoded, so a
/// "&" in an URL breaks the queries. Four of the links bear the name of another engine than the one they lead
/// to; users know the page so, and it is kept.
class Top9Page {
public:
    struct Parts {
        Project &project;
        MainFrame &frame;
        const RunResult &result;
        const Hosts &hosts; ///< section [Top9]; without a host an address is its path alone
        DocumentViewer &viewer;
    };

    /// All parts must outlive this.
    explicit Top9Page(const Parts &theParts);

    /// Writes the page for the URL in txtURL and shows it. False if it could not be written; the old one is
    /// shown then. Yields.
    bool WriteTop9Page();

    /// Writes the same lines with the URL of a slot of MultiUrlTable into an open file. False if that failed.
    bool WriteTop9Body(int slot, WholeFile &file) const;

    /// Where WriteTop9Page has written.
    const QString &Path() const { return page.Path(); }

    /// By the on/off name of an engine: 1 if its frame is printed, as all are at first. The links always are.
    QMap<QString, int> checks;

private:
    QString Html(const QString &url) const;

    Parts parts;
    ProjectPage page;
};

} // namespace lanterra
