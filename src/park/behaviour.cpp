#include "park/behaviour.h"

#include "park/json_resource.h"

#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>

using namespace Qt::StringLiterals;

// A row of the table: {"name", "what", "outcome", "disk", "end": "close" | "reset" | "hold", "early": true,
// "steps": [...]}. A step is a text (one byte a character) that is sent at once, or one of
//   {"repeat": text, "times": n, "pause": ms}   the text n times, with a pause behind each
//   {"drip": text, "pause": ms}                 the text byte by byte, with a pause behind each
//   {"wait": ms}

namespace lanterra {

namespace {

constexpr qsizetype comfortableBlock = 16'384;

BehaviourStep MakeStep(const QJsonValue &value) {
    BehaviourStep step;
    const QJsonObject source = value.toObject();
    step.oneByOne = source.contains("drip"_L1);
    step.pause = source["pause"_L1].toInt() + source["wait"_L1].toInt();
    step.block =
        (value.toString() + source["repeat"_L1].toString() + source["drip"_L1].toString()).toLatin1();
    step.total = step.block.size() * source["times"_L1].toInteger(1);
    if (step.pause == 0 && step.total > step.block.size())
        step.block = step.block.repeated(qMax(comfortableBlock / step.block.size(), qsizetype(1)));
    return step;
}

BehaviourEnd EndNamed(const QString &name) {
    if (name == u"reset")
        return BehaviourEnd::Reset;
    return name == u"hold" ? BehaviourEnd::Hold : BehaviourEnd::Close;
}

} // namespace

Behaviour MakeBehaviour(const QJsonObject &source) {
    Behaviour behaviour;
    behaviour.name = source["name"_L1].toString();
    behaviour.what = source["what"_L1].toString();
    behaviour.outcome = source["outcome"_L1].toString();
    behaviour.disk = source["disk"_L1].toString();
    behaviour.end = EndNamed(source["end"_L1].toString());
    behaviour.early = source["early"_L1].toBool();
    const QJsonArray steps = source["steps"_L1].toArray();
    for (const QJsonValueConstRef &step : steps)
        behaviour.steps.append(MakeStep(step));
    return behaviour;
}

BehaviourTable::BehaviourTable() {
    const QJsonArray table = ReadJsonResource(u":/park/behaviours.json"_s).array();
    for (const QJsonValueConstRef &row : table)
        rows.append(MakeBehaviour(row.toObject()));
}

const Behaviour *BehaviourTable::Find(QStringView name) const {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [name](const Behaviour &row) { return row.name == name; });
    return found == rows.end() ? nullptr : &*found;
}

} // namespace lanterra
