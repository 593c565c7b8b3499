#include "park/answer_table.h"

#include "park/json_resource.h"

#include <QJsonObject>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace lanterra {

QString AnswerText::Outcome() const {
    if (status != 200)
        return QString::number(status);
    return refuses ? u"refused"_s : u"accepted"_s;
}

AnswerTable::AnswerTable() {
    const QJsonObject table = ReadJsonResource(u":/park/answers.json"_s).object();
    for (auto row = table.begin(); row != table.end(); ++row) {
        const QJsonObject source = row.value().toObject();
        AnswerText &answer = answers[row.key()];
        answer.status = source["status"_L1].toInt();
        answer.reason = source["reason"_L1].toString().toLatin1();
        answer.refuses = source["refuses"_L1].toBool();
        answer.location = source["location"_L1].toString();
        answer.title = source["title"_L1].toString();
        answer.paragraphs = source["text"_L1].toVariant().toStringList();
    }
}

} // namespace lanterra
