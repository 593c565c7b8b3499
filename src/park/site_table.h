#pragma once

#include "park/practice_site.h"

#include <QHash>
#include <vector>

namespace lanterra {

/// All practice sites. Their names, addresses and fields are those of the site database's own source, so the
/// two can't disagree; how each one behaves stands in a table of its own, by the folder of the site's
/// address.
class SiteTable {
public:
    /// Reads the tables that are built into the program.
    SiteTable();

    const std::vector<PracticeSite> &Sites() const { return sites; }

    /// The site in whose folder this path lies, nullptr if there is none.
    const PracticeSite *FindByPath(const QByteArray &path) const;

private:
    std::vector<PracticeSite> sites;
    QHash<QByteArray, size_t> rowBySlug;
};

} // namespace lanterra
