#pragma once

#include <QHash>
#include <QList>
#include <QProcess>
#include <QSslCertificate>
#include <QTemporaryDir>

namespace lanterra {

/// The practice web as a process of its own with all its gates, on free ports, for as long as the object
/// lives.
class ParkProcess {
public:
    ParkProcess();
    ~ParkProcess();
    Q_DISABLE_COPY_MOVE(ParkProcess)

    /// Whether it listens on all its ports.
    bool Stands() const { return stands; }

    quint16 Port() const { return mainPort; }
    quint16 GatePort(const QString &gate) const { return gates.value(gate); }

    /// The file with the authority to trust, and what is in it.
    QString AuthorityPath() const { return folder.filePath(QStringLiteral("authority.pem")); }
    QList<QSslCertificate> Authorities() const { return QSslCertificate::fromPath(AuthorityPath()); }

private:
    QString NextLine();

    QTemporaryDir folder;
    QProcess program;
    quint16 mainPort = 0;
    QHash<QString, quint16> gates;
    bool stands = false;
};

} // namespace lanterra
