#include "park/engine_rows.h"

#include "support/text_file.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

/// The language of the engine file in that of the site database.
QString AsTemplate(const QString &query) {
    QString text = u'"' + query + u'"';
    text.replace("[url]"_L1, "\" & txtUrlText & \""_L1);
    text.replace("[email]"_L1, "\" & txtEmailText & \""_L1);
    return text.replace("[name]"_L1, "\" & txtNameText & \""_L1);
}

bool TakesForm(const QString &name) {
    return name.contains("Excite"_L1) || name.contains("Northern"_L1) || name.contains("Netfind"_L1);
}

} // namespace

QJsonArray EngineRows() {
    QJsonArray rows;
    QString name;
    for (const QString &line : ReadFileText(u":/park/engines.txt"_s).split(u'\n')) {
        const QString value = line.section(u'=', 1);
        if (line.startsWith("Name="_L1))
            name = value;
        if (line.startsWith("Submit="_L1))
            rows.append(QJsonObject{{u"name"_s, name},
                                    {u"type"_s, u"top engine"_s},
                                    {u"method"_s, TakesForm(name) ? u"post"_s : u"get"_s},
                                    {u"action"_s, value.section(u'?', 0, 0)},
                                    {u"query"_s, AsTemplate(value.section(u'?', 1))}});
    }
    return rows;
}

} // namespace lanterra
