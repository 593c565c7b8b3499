#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace lanterra {

/// What the command line of the practice web asks for.
struct ParkOptions {
    enum class Task { Serve, List, Help, Version, WrongUse };

    Task task = Task::Serve;
    quint16 port = 8571;              ///< 0 for any free one
    int latency = 0;                  ///< milliseconds
    QString logPath;                  ///< empty for none
    std::optional<quint16> tlsPort;   ///< of the first gate over TLS, 0 for free ones; none without TLS
    std::optional<quint16> proxyPort; ///< the same of the proxies
    QString certificateFolder;        ///< empty for a temporary one
    QString text; ///< of Help and Version; of WrongUse one sentence that says what is wrong
};

/// Reads the command line; `arguments` begins with the program's name. Never ends the process.
ParkOptions ReadParkOptions(const QStringList &arguments);

} // namespace lanterra
