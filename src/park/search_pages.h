#pragma once

#include "park/site_pages.h"
#include "park/site_table.h"

#include <QJsonObject>

namespace lanterra {

/// One search of the practice web.
struct PracticeSearch {
    PracticeSite frame;      ///< name and look of its engine
    QString field;           ///< of the query, with the words
    bool findsLinks = false; ///< asks who links to an address, not for words
    bool redirects = false;  ///< its results are relative links to the director
};

/// The result pages of the search engines. Their paths are those that the program asks for, from its own
/// table; they find the practice sites, the best matches first.
class SearchPages {
public:
    SearchPages();

    /// nullptr if the path is no search's.
    const PracticeSearch *Find(const QByteArray &path) const;

    /// `words` is what was asked for; `origin` stands in front of the results' addresses. Gives UTF-8.
    QByteArray ResultPage(const PracticeSearch &search, const QString &words, const SiteTable &sites,
                          const QString &origin) const;

private:
    void Add(const QJsonValue &row, bool findsLinks, const QJsonObject &looks);

    QHash<QByteArray, PracticeSearch> searches; ///< by path
    SitePages pages;
};

} // namespace lanterra
