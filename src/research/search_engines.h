#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace lanterra {

/// What can be asked of one search engine. The address of a request is the engine's host, `start`, the
/// encoded text and `end`.
struct EngineQuery {
    QString engine; ///< also the key of its host in hosts.ini
    QString start;
    QString end;
    QString file; ///< that takes the answer, without folder and ending
};

/// The search engines that the pane knows, from the resource search_engines.json.
class SearchEngines {
public:
    SearchEngines();

    QStringList Names() const;

    /// The search of the engine of exactly this name, nullptr if there is none.
    const EngineQuery *Find(const QString &engine) const;

    /// The look-up of the pages that link to an address.
    const EngineQuery &Links() const { return links; }

private:
    QList<EngineQuery> searches;
    EngineQuery links;
};

} // namespace lanterra
