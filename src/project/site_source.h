#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace lanterra {

/// One site of a site database, with its categories if it is a directory that wants one chosen: the default
/// first, then those that are offered.
struct SiteEntry {
    QString name, type, action, method, query;
    QStringList categories;

    bool operator==(const SiteEntry &) const = default;
};

/// What a site database holds before any project uses it, sites in their order.
struct SiteSource {
    int version = 0; ///< a project of a lower one takes over this list
    QList<SiteEntry> sites;

    bool operator==(const SiteSource &) const = default;
};

/// A fault of a site list: where it stands and why it is one.
struct SiteFinding {
    QString file;
    int row = 0; ///< of the site, counted from 1; 0 for the file as a whole
    QString reason;

    /// "FILE:ROW: REASON" or "FILE: REASON", as compilers write it, so that editors find the place.
    QString Text() const;
};

/// A site list as far as it could be read; whole if there are no findings.
struct SiteSourceReading {
    SiteSource source;
    QList<SiteFinding> findings;
};

/// Reads the readable form of a site database, JSON in UTF-8:
///
///     file       = { "version": number, "sites": [ site, ... ] }
///     site       = { "name": text, "type": text, "action": text, "method": text, "query": text,
///                    "categories": [ default, offered, ... ] }
///
/// The version is a whole number from 1. All texts must be there, in any order; "categories" may be left out.
/// "query" is the template as it is stored, its quotes escaped as JSON wants it. Any other key is a finding.
SiteSourceReading ReadSiteSource(const QString &path);

/// The list in that form, ending in a line break; ReadSiteSource gives the same list again.
QString SiteSourceText(const SiteSource &source);

} // namespace lanterra
