#pragma once

#include "project/site_source_build.h"

namespace lanterra {

/// Makes a site database, such as ng.dll, out of a few words. Checks nothing, so a test can make bad ones
/// too. Link lanterra_project.
class SiteDatabaseBuilder {
public:
    SiteDatabaseBuilder &Version(int version) {
        source.version = version;
        return *this;
    }

    /// Adds a site that takes the address of the page alone.
    SiteDatabaseBuilder &Site(const QString &name, const QString &type = QStringLiteral("search engine")) {
        SiteEntry site;
        site.name = name;
        site.type = type;
        site.action = QStringLiteral("http://127.0.0.1/add");
        site.method = QStringLiteral("get");
        site.query = QStringLiteral("\"url=\" & txtUrlText");
        source.sites.append(site);
        return *this;
    }

    /// Changes the last site.
    SiteDatabaseBuilder &Action(const QString &action) {
        source.sites.last().action = action;
        return *this;
    }
    SiteDatabaseBuilder &Method(const QString &method) {
        source.sites.last().method = method;
        return *this;
    }
    SiteDatabaseBuilder &Query(const QString &query) {
        source.sites.last().query = query;
        return *this;
    }
    /// The default, then those that are offered.
    SiteDatabaseBuilder &Categories(const QStringList &categories) {
        source.sites.last().categories = categories;
        return *this;
    }

    bool Write(const QString &path) const { return BuildSiteDatabase(source, path); }
    const SiteSource &Source() const { return source; }

private:
    SiteSource source{1, {}};
};

} // namespace lanterra
