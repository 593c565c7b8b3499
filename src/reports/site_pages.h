#pragma once

#include "project/project_path.h"

#include <QString>

namespace lanterra {

/// The local pages of sites: one file a site, named after it, in the folder of the run's report.

/// Creates the project's own folder and the one of the site pages; those that exist are fine.
void CreateReportFolders(const ProjectPath &path, const QString &reportFolder);

/// Where the page of a site lies, whether it exists or not.
QString SitePagePath(const QString &reportFolder, const QString &siteName);

/// Whether a site of this name can have a page. The empty name can (its page is ".htm"); a name that a file
/// can't bear can't, and no file is written for it anywhere.
bool CanHavePage(const QString &siteName);

/// Replaces the page of a site. Does nothing for a name without a page; a page that can't be written is
/// passed over. A link in its place is replaced, not followed.
void WriteSitePage(const QString &reportFolder, const QString &siteName, const QString &html);

/// The page of a site that has not answered, and that of a site that was not selected.
QString BusySitePage();
QString NotSelectedPage();

/// The page that stands for a redirection: a link to its target under the site's name.
QString RedirectionPage(const QString &redirectTarget, const QString &siteName);

} // namespace lanterra
