#include "park/search_pages.h"

#include "park/json_resource.h"

#include <QJsonArray>
#include <QUrl>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr qsizetype resultsPerPage = 10;

/// How many of the words the site's name and motto hold. A link list counts as one that links to a page.
qsizetype Rank(const PracticeSite &site, const QStringList &words, bool findsLinks) {
    if (findsLinks)
        return site.kind == u"link list" ? 1 : 0;
    return std::count_if(words.begin(), words.end(), [&site](const QString &word) {
        return site.name.contains(word, Qt::CaseInsensitive) || site.line.contains(word, Qt::CaseInsensitive);
    });
}

std::vector<const PracticeSite *> BestMatches(const PracticeSearch &search, const QString &words,
                                              const SiteTable &sites) {
    const QStringList wordList = words.split(u' ', Qt::SkipEmptyParts);
    const auto rank = [&](const PracticeSite *site) { return Rank(*site, wordList, search.findsLinks); };
    std::vector<const PracticeSite *> matches;
    for (const PracticeSite &site : sites.Sites())
        matches.push_back(&site);
    std::stable_sort(matches.begin(), matches.end(),
                     [&rank](const auto *one, const auto *other) { return rank(one) > rank(other); });
    matches.resize(std::min<size_t>(matches.size(), resultsPerPage));
    return matches;
}

} // namespace

SearchPages::SearchPages() {
    const QJsonDocument table = ReadJsonResource(u":/park/search_engines.json"_s);
    const QJsonObject looks = ReadJsonResource(u":/park/search_looks.json"_s).object();
    for (const QJsonValue row : table["searches"_L1].toArray())
        Add(row, false, looks);
    Add(table["links"_L1], true, looks);
}

// The words stand behind the last name of the start of the query.
void SearchPages::Add(const QJsonValue &row, bool findsLinks, const QJsonObject &looks) {
    const QString start = row["start"_L1].toString();
    PracticeSearch search;
    search.frame.name = row["engine"_L1].toString();
    search.frame.line = looks[search.frame.name]["line"_L1].toString();
    search.frame.look = looks[search.frame.name]["look"_L1].toString();
    search.frame.path = start.section(u'?', 0, 0).toLatin1();
    search.field = start.section(u'?', 1).section(u'&', -1).section(u'=', 0, 0);
    search.findsLinks = findsLinks;
    search.redirects = search.frame.name == u"HotBot";
    searches.insert(search.frame.path, search);
}

const PracticeSearch *SearchPages::Find(const QByteArray &path) const {
    const auto found = searches.constFind(path);
    return found == searches.constEnd() ? nullptr : &*found;
}

QByteArray SearchPages::ResultPage(const PracticeSearch &search, const QString &words, const SiteTable &sites,
                                   const QString &origin) const {
    QList<SearchHit> hits;
    for (const PracticeSite *site : BestMatches(search, words, sites)) {
        const QString address = origin + site->Home();
        const QString target = QString::fromLatin1(QUrl::toPercentEncoding(address));
        hits.append({site->name, site->line, address,
                     search.redirects ? u"/director.asp?target="_s + target : address});
    }
    const QString title =
        search.findsLinks ? u"Who links to %1"_s.arg(words) : u"Results for %1"_s.arg(words);
    return pages.ResultPage(search.frame, title, hits);
}

} // namespace lanterra
