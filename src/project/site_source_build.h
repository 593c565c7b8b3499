#pragma once

#include "project/site_source.h"

namespace lanterra {

/// Writes the list as a site database, whole or not at all, replacing what is there: each site a row of table
/// "Data" with nothing selected, the version in the first of them; each site with categories a row of table
/// "Categories", whose choice is the empty text, as a NULL there would pass for a choice; no other rows.
/// Doesn't check the list. False if the file could not be written.
bool BuildSiteDatabase(const SiteSource &source, const QString &path);

/// Reads, checks and builds in one step. The findings that stopped it; empty if the database was written.
QList<SiteFinding> BuildSiteFile(const QString &sourcePath, const QString &path);

/// The list that a site database holds, master or project. Findings: the file is no site database, or table
/// "Categories" names an unknown site or one site twice.
SiteSourceReading ReadSiteDatabase(const QString &path);

} // namespace lanterra
