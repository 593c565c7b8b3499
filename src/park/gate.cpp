#include "park/gate.h"

#include "park/json_resource.h"

#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

// A row of the table: {"name", "what", "group": "tls" | "proxy",
//                      "cases": [[scheme, page, outcome, disk], ...]} and one of
//   "certificate": name, and "alert": false where TLS's closing alert is left out
//   "kind": "proxy" | "closed" | "not-accepting"
//   "steps", "end" and "early" as in the table of behaviours, begun by the first byte, if early at once

namespace lanterra {

namespace {

Gate::Kind KindOf(const QJsonObject &source) {
    if (source.contains("certificate"_L1))
        return Gate::Kind::Tls;
    const QString kind = source["kind"_L1].toString();
    if (kind == u"proxy")
        return Gate::Kind::Proxy;
    if (kind == u"closed")
        return Gate::Kind::Closed;
    return kind == u"not-accepting" ? Gate::Kind::NotAccepting : Gate::Kind::Script;
}

GateCase MakeCase(const QJsonArray &source) {
    return {source[0].toString(), source[1].toString(), source[2].toString(), source[3].toString()};
}

Gate MakeGate(const QJsonObject &source) {
    Gate gate;
    gate.name = source["name"_L1].toString();
    gate.what = source["what"_L1].toString();
    gate.group = source["group"_L1].toString() == u"proxy" ? Gate::Group::Proxy : Gate::Group::Tls;
    gate.kind = KindOf(source);
    gate.certificate = source["certificate"_L1].toString();
    gate.closingAlert = source["alert"_L1].toBool(true);
    gate.script = MakeBehaviour(source);
    const QJsonArray cases = source["cases"_L1].toArray();
    for (const QJsonValueConstRef &row : cases)
        gate.cases.append(MakeCase(row.toArray()));
    return gate;
}

} // namespace

GateTable::GateTable() {
    const QJsonArray table = ReadJsonResource(u":/park/gates.json"_s).array();
    for (const QJsonValueConstRef &row : table)
        rows.append(MakeGate(row.toObject()));
}

QList<Gate> GateTable::RowsOf(Gate::Group group) const {
    QList<Gate> found;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(found),
                 [group](const Gate &row) { return row.group == group; });
    return found;
}

QString OpenGate::AddressOf(const GateCase &row) const {
    return u"%1://127.0.0.1:%2/behave/%3"_s.arg(row.scheme).arg(port).arg(row.page);
}

} // namespace lanterra
