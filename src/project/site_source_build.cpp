#include "project/site_source_build.h"

#include "database/data_control.h"
#include "database/database_files.h"
#include "database/walk_transaction.h"
#include "project/site_schema.h"
#include "project/site_source_check.h"
#include "support/file_names.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr auto lineBreak = "\r\n"_L1;

bool Bind(DataControl &control, const QString &table) {
    control.SetRecordSource(table);
    return control.Refresh();
}

bool AddSites(DataControl &table, const SiteSource &source) {
    for (const SiteEntry &site : source.sites) {
        const bool isFirst = table.RowCount() == 0;
        if (!table.AddNew() || !table.SetText(u"Name"_s, site.name) ||
            !table.SetText(u"Action"_s, site.action) || !table.SetText(u"Query"_s, site.query) ||
            !table.SetText(u"Method"_s, site.method) || !table.SetText(u"Type"_s, site.type) ||
            !table.SetBoolean(u"Selected"_s, false) ||
            (isFirst && !table.SetNumber(u"Version"_s, source.version)) || !table.Update())
            return false;
    }
    return true;
}

bool AddCategories(DataControl &table, const SiteSource &source) {
    for (const SiteEntry &site : source.sites) {
        if (site.categories.isEmpty())
            continue;
        if (!table.AddNew() || !table.SetText(u"Name"_s, site.name) ||
            !table.SetText(u"Categories"_s, site.categories.join(lineBreak)) ||
            !table.SetText(u"Selected"_s, u""_s) || !table.Update())
            return false;
    }
    return true;
}

bool Fill(const QString &path, const SiteSource &source) {
    DatabaseFiles files(SiteSchema());
    DataControl table(files, DataControl::Access::ReadWrite);
    table.SetDatabaseName(path);
    if (!Bind(table, u"Data"_s))
        return false;
    WalkTransaction walk(table);
    return AddSites(table, source) && Bind(table, u"Categories"_s) && AddCategories(table, source) &&
           walk.Commit();
}

void ReadSites(DataControl &table, SiteSource &source) {
    source.version = table.Number(u"Version"_s);
    for (bool here = table.MoveFirst(); here; here = table.MoveNext()) {
        SiteEntry site;
        site.name = table.Text(u"Name"_s);
        site.type = table.Text(u"Type"_s);
        site.action = table.Text(u"Action"_s);
        site.method = table.Text(u"Method"_s);
        site.query = table.Text(u"Query"_s);
        source.sites.append(site);
    }
}

/// Gives the categories of the current row to their site. Why that can't be done, empty if it was.
QString ReadCategoriesRow(const DataControl &table, QList<SiteEntry> &sites) {
    const QString name = table.Text(u"Name"_s);
    const auto named = [&name](const SiteEntry &site) { return site.name == name; };
    const auto site = std::find_if(sites.begin(), sites.end(), named);
    if (site == sites.end())
        return u"Categories of an unknown site: %1"_s.arg(name);
    if (!site->categories.isEmpty())
        return u"Categories for the second time: %1"_s.arg(name);
    site->categories = table.Text(u"Categories"_s).split(lineBreak);
    return {};
}

} // namespace

bool BuildSiteDatabase(const SiteSource &source, const QString &path) {
    return CreateSiteDatabase(path, [&source](const QString &newPath) { return Fill(newPath, source); });
}

QList<SiteFinding> BuildSiteFile(const QString &sourcePath, const QString &path) {
    const SiteSourceReading reading = ReadSiteSource(sourcePath);
    QList<SiteFinding> findings = reading.findings;
    if (findings.isEmpty())
        findings = CheckSiteSource(reading.source, sourcePath);
    if (IsSameFile(sourcePath, path))
        findings.append({path, 0, u"The list can't be replaced by its own database."_s});
    if (findings.isEmpty() && !BuildSiteDatabase(reading.source, path))
        findings.append({path, 0, u"The database could not be written."_s});
    return findings;
}

SiteSourceReading ReadSiteDatabase(const QString &path) {
    SiteSourceReading reading;
    DatabaseFiles files(SiteSchema());
    DataControl table(files, DataControl::Access::ReadOnly);
    table.SetDatabaseName(path);
    if (Bind(table, u"Data"_s))
        ReadSites(table, reading.source);
    if (!table.Failure().isEmpty() || !Bind(table, u"Categories"_s)) {
        reading.findings.append({path, 0, table.Failure()});
        return reading;
    }
    int row = 1;
    for (bool here = table.MoveFirst(); here; here = table.MoveNext(), ++row) {
        const QString refusal = ReadCategoriesRow(table, reading.source.sites);
        if (!refusal.isEmpty())
            reading.findings.append({path, row, refusal});
    }
    return reading;
}

} // namespace lanterra
