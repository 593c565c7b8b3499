#pragma once

#include "park/dead_port.h"
#include "park/gate_server.h"
#include "park/practice_certificates.h"

#include <memory>
#include <optional>
#include <vector>

namespace lanterra {

/// The further ports of the practice web: over TLS, and behind a proxy.
class ParkGates {
public:
    /// `practicePark`, which is served on `plainPort`, and `accessLog` must outlive the gates.
    ParkGates(Park &practicePark, quint16 plainPort, AccessLog &accessLog, int latency);

    /// Opens the gates of TLS on the port and those behind it, in the order of the table; 0 takes free ports.
    /// `certificateFolder` as in PracticeCertificates. False if one can't be opened: see ErrorText.
    bool OpenTls(quint16 firstPort, const QString &certificateFolder);

    /// The same for the proxies.
    bool OpenProxies(quint16 firstPort);

    const QString &ErrorText() const { return errorText; }

    /// The gates that stand open, in the order of the table within each group.
    const QList<OpenGate> &Open() const { return open; }

private:
    bool OpenGroup(Gate::Group group, quint16 firstPort);
    bool OpenOne(const Gate &gate, quint16 port);
    bool OpenDeadPort(const Gate &gate, quint16 port);
    bool OpenServer(const Gate &gate, quint16 port);
    bool Fail(quint16 port, const QString &reason);
    bool IsOwnPort(quint16 port) const;

    Park &park;
    quint16 mainPort;
    AccessLog &log;
    int latencyMs;
    std::optional<PracticeCertificates> certificates;
    std::vector<std::unique_ptr<GateServer>> servers;
    std::vector<std::unique_ptr<DeadPort>> deadPorts;
    QList<OpenGate> open;
    QString errorText;
};

} // namespace lanterra
