#include "project/site_source_check.h"

#include "project/site_source_build.h"
#include "project/site_template.h"
#include "support/file_names.h"

#include <QFile>
#include <QSet>
#include <QUrl>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// Bytes that most file systems give a name, less room for ".htm" and for the ending of a file that is being
// written.
constexpr qsizetype longestName = 240;

QString NameRefusal(const QString &name) {
    if (name.trimmed().isEmpty())
        return u"The name is empty."_s;
    if (name != name.trimmed())
        return u"The name begins or ends with a blank."_s;
    if (!CanBeFileName(name))
        return u"The name can't be a file name: %1"_s.arg(name);
    return name.toUtf8().size() > longestName ? u"The name is too long for a file name."_s : QString();
}

QString TypeRefusal(const QString &type) {
    const auto occurs = [&type](QLatin1StringView word) { return type.contains(word, Qt::CaseInsensitive); };
    if (occurs("directory"_L1) || occurs("engine"_L1) || occurs("list"_L1))
        return {};
    return u"The type names no directory, engine or list: %1"_s.arg(type);
}

QString MethodRefusal(const QString &method) {
    const QString word = method.toLower();
    return word == "get"_L1 || word == "post"_L1 ? QString()
                                                 : u"The method is not get or post: %1"_s.arg(method);
}

QString ActionRefusal(const QString &action) {
    const QUrl address(action, QUrl::StrictMode);
    const bool isWeb = address.scheme() == "http"_L1 || address.scheme() == "https"_L1;
    return isWeb && address.isValid() && !address.host().isEmpty() && !address.hasFragment()
               ? QString()
               : u"The action is no address of a form: %1"_s.arg(action);
}

QString CategoriesRefusal(const SiteEntry &site) {
    const bool wanted = AsksForCategory(site.query);
    if (wanted && site.categories.isEmpty())
        return u"The template asks for a category, but the site has none."_s;
    if (!wanted && !site.categories.isEmpty())
        return u"The site has categories, but its template asks for none."_s;
    const auto isNoLine = [](const QString &category) {
        return category.trimmed().isEmpty() || category.contains(u'\r') || category.contains(u'\n');
    };
    if (std::any_of(site.categories.cbegin(), site.categories.cend(), isNoLine))
        return u"A category is empty or holds a line break."_s;
    QStringList offered = site.categories.mid(1);
    return offered.removeDuplicates() > 0 ? u"A category is offered twice."_s : QString();
}

bool IsDatabase(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(15) == "SQLite format 3";
}

} // namespace

QList<SiteFinding> CheckSiteSource(const SiteSource &source, const QString &file) {
    QList<SiteFinding> findings;
    if (source.version < 1)
        findings.append({file, 0, u"The version is no whole number from 1."_s});
    if (source.sites.isEmpty())
        findings.append({file, 0, u"There are no sites."_s});
    QSet<QString> names;
    int row = 0;
    for (const SiteEntry &site : source.sites) {
        QStringList refusals{NameRefusal(site.name),      TypeRefusal(site.type),
                             MethodRefusal(site.method),  ActionRefusal(site.action),
                             TemplateRefusal(site.query), CategoriesRefusal(site)};
        if (names.contains(site.name.toCaseFolded()))
            refusals.append(u"The name stands in the list twice: %1"_s.arg(site.name));
        names.insert(site.name.toCaseFolded());
        ++row;
        refusals.removeAll(QString());
        for (const QString &refusal : refusals)
            findings.append({file, row, refusal});
    }
    return findings;
}

QList<SiteFinding> CheckSiteFile(const QString &path) {
    const SiteSourceReading reading = IsDatabase(path) ? ReadSiteDatabase(path) : ReadSiteSource(path);
    return reading.findings.isEmpty() ? CheckSiteSource(reading.source, path) : reading.findings;
}

} // namespace lanterra
