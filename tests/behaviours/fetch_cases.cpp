#include "tests/behaviours/fetch_cases.h"

#include "park/gate.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QString Address(const QString &scheme, quint16 port, const QString &page) {
    return u"%1://127.0.0.1:%2/behave/%3"_s.arg(scheme).arg(port).arg(page);
}

FetchCase CaseOf(const ParkProcess &park, const Gate &gate, const GateCase &row) {
    const quint16 port = park.GatePort(gate.name);
    if (gate.group == Gate::Group::Tls)
        return {gate.name, row.page, Address(row.scheme, port, row.page), 0, row.outcome, row.disk};
    const quint16 server = row.scheme == u"https" ? park.GatePort(u"tls"_s) : park.Port();
    return {gate.name + u' ' + row.scheme,
            row.page,
            Address(row.scheme, server, row.page),
            port,
            row.outcome,
            row.disk};
}

} // namespace

QList<FetchCase> BehaviourCases(const ParkProcess &park) {
    QList<FetchCase> cases;
    const BehaviourTable table;
    for (const Behaviour &row : table.Rows()) {
        cases.append(
            {u"plain"_s, row.name, Address(u"http"_s, park.Port(), row.name), 0, row.outcome, row.disk});
        cases.append({u"tls"_s, row.name, Address(u"https"_s, park.GatePort(u"tls"_s), row.name), 0,
                      row.outcome, row.disk});
    }
    return cases;
}

QList<FetchCase> ProxyCases(const ParkProcess &park) {
    QList<FetchCase> cases = BehaviourCases(park);
    for (FetchCase &row : cases) {
        row.way = row.way == u"plain" ? u"proxy"_s : u"tunnel"_s;
        row.proxyPort = park.GatePort(u"proxy"_s);
    }
    return cases;
}

QList<FetchCase> GateCases(const ParkProcess &park) {
    QList<FetchCase> cases = {
        {u"nowhere"_s, u"label-too-long"_s, u"http://%1.example/"_s.arg(QString(64, u'x')), 0, u"failed"_s,
         u"old page"_s},
        {u"nowhere"_s, u"no-route"_s, u"http://255.255.255.255/"_s, 0, u"failed"_s, u"old page"_s},
    };
    const GateTable table;
    for (const Gate &gate : table.Rows())
        for (const GateCase &row : gate.cases)
            cases.append(CaseOf(park, gate, row));
    return cases;
}

} // namespace lanterra
