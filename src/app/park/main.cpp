#include "park/park_gates.h"
#include "park/park_options.h"
#include "park/park_server.h"

#include <QCoreApplication>
#include <QTextStream>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

constexpr int failed = 1;
constexpr int wrongUse = 2;

void Print(FILE *stream, const QString &text) { QTextStream(stream) << text << Qt::flush; }

int Complain(int exitCode, const QString &sentence) {
    Print(stderr, u"lanterra-park: "_s + sentence + u'\n');
    return exitCode;
}

void List() {
    const BehaviourTable behaviours;
    const GateTable gates;
    for (const Behaviour &row : behaviours.Rows())
        Print(stdout, u"%1  %2\n"_s.arg(row.name, -22).arg(row.what));
    for (const Gate &row : gates.Rows())
        Print(stdout, u"%1  %2\n"_s.arg(row.name, -22).arg(row.what));
}

QString ReasonNotToListen(const ParkServer &server, quint16 port) {
    if (server.serverError() == QAbstractSocket::AddressInUseError)
        return u"port %1 is in use; choose another with --port N, or any free one with --port 0"_s.arg(port);
    return u"can't listen on port %1: %2"_s.arg(port).arg(server.errorString());
}

bool OpenGates(ParkGates &gates, const ParkOptions &options) {
    if (options.tlsPort && !gates.OpenTls(*options.tlsPort, options.certificateFolder))
        return false;
    return !options.proxyPort || gates.OpenProxies(*options.proxyPort);
}

int Serve(const QCoreApplication &application, const ParkOptions &options) {
    AccessLog log(options.logPath);
    if (!log.ErrorText().isEmpty())
        return Complain(failed, log.ErrorText());
    ParkServer server(options.latency, log);
    if (!server.Start(options.port))
        return Complain(failed, ReasonNotToListen(server, options.port));
    ParkGates gates(*server.Content(), server.serverPort(), log, options.latency);
    if (!OpenGates(gates, options))
        return Complain(failed, gates.ErrorText());
    Print(stdout, server.Origin() + u"/\n"_s);
    for (const OpenGate &row : gates.Open())
        Print(stdout, u"127.0.0.1:%1  %2\n"_s.arg(row.port).arg(row.gate.name));
    return application.exec();
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const ParkOptions options = ReadParkOptions(QCoreApplication::arguments());
    switch (options.task) {
    case ParkOptions::Task::Serve:
        return Serve(application, options);
    case ParkOptions::Task::List:
        List();
        return 0;
    case ParkOptions::Task::Help:
    case ParkOptions::Task::Version:
        Print(stdout, options.text);
        return 0;
    case ParkOptions::Task::WrongUse:
        break;
    }
    return Complain(wrongUse, options.text + u"\nTry: lanterra-park --help"_s);
}
