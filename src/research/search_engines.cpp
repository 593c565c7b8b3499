#include "research/search_engines.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

EngineQuery ReadQuery(const QJsonValue &row) {
    return {row["engine"_L1].toString(), row["start"_L1].toString(), row["end"_L1].toString(),
            row["file"_L1].toString()};
}

} // namespace

SearchEngines::SearchEngines() {
    QFile file(u":/research/search_engines.json"_s);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonDocument table = QJsonDocument::fromJson(file.readAll());
    for (const QJsonValue row : table["searches"_L1].toArray())
        searches << ReadQuery(row);
    links = ReadQuery(table["links"_L1]);
}

QStringList SearchEngines::Names() const {
    QStringList names;
    for (const EngineQuery &query : searches)
        names << query.engine;
    return names;
}

const EngineQuery *SearchEngines::Find(const QString &engine) const {
    const auto found = std::find_if(searches.begin(), searches.end(),
                                    [&](const EngineQuery &query) { return query.engine == engine; });
    return found == searches.end() ? nullptr : &*found;
}

} // namespace lanterra
