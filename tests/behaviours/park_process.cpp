#include "tests/behaviours/park_process.h"

#include "park/gate.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int patience = 20'000; // milliseconds

quint16 PortIn(const QString &address) { return address.section(u':', -1).remove(u'/').toUShort(); }

} // namespace

ParkProcess::ParkProcess() {
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QStringLiteral(LANTERRA_PARK),
                  {u"--port"_s, u"0"_s, u"--tls-port"_s, u"0"_s, u"--proxy-port"_s, u"0"_s,
                   u"--certificates"_s, folder.path()});
    mainPort = PortIn(NextLine());
    const qsizetype gateCount =
        GateTable().RowsOf(Gate::Group::Tls).size() + GateTable().RowsOf(Gate::Group::Proxy).size();
    for (qsizetype i = 0; i < gateCount; ++i) {
        const QString line = NextLine();
        gates.insert(line.section(u' ', -1), PortIn(line.section(u' ', 0, 0)));
    }
    stands = mainPort != 0 && !gates.values().contains(0);
}

ParkProcess::~ParkProcess() {
    program.terminate();
    program.waitForFinished(patience);
}

QString ParkProcess::NextLine() {
    while (!program.canReadLine())
        if (!program.waitForReadyRead(patience))
            return {};
    return QString::fromUtf8(program.readLine()).trimmed();
}

} // namespace lanterra
