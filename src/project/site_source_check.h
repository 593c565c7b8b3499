#pragma once

#include "project/site_source.h"

namespace lanterra {

/// Everything that makes a list unfit for use; empty if it is fit. A site needs a name of its own (also where
/// case is ignored) that can be a file name, a type that names a directory, an engine or a list, the method
/// "get" or "post", an http or https address as its action, and a template of the language of
/// site_template.h. It has categories exactly if its template asks for one; none is empty and none is offered
/// twice. `file` stands in the findings.
QList<SiteFinding> CheckSiteSource(const SiteSource &source, const QString &file);

/// The findings on a file, a readable list or a site database, whichever it is by its first bytes. A file
/// that can't be read whole gives the findings of the reading alone.
QList<SiteFinding> CheckSiteFile(const QString &path);

} // namespace lanterra
