#pragma once

#include <QByteArray>
#include <QObject>
#include <memory>

class QSocketNotifier;
class QTcpSocket;

namespace lanterra {

/// Hands bytes to a connected socket in small blocks, as the system takes them, and stops for good once the
/// peer has reset the connection. Qt closes a socket in which a write fails, in front of bytes that lie
/// unread, so a write into a reset connection would lose an answer that the peer gave early.
class PacedWriter final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PacedWriter)

public:
    PacedWriter();
    ~PacedWriter() override;

    /// `duplicate` is a second descriptor of the socket's connection; both must stay open while this object
    /// writes.
    void Start(QTcpSocket &target, int duplicate);

    /// Sends the bytes behind those before. Needs Start first.
    void Write(const QByteArray &bytes);

private:
    enum class Room { Some, None, Gone };

    Room Look() const;
    void Continue();

    QTcpSocket *socket = nullptr;
    int descriptor = -1;
    std::unique_ptr<QSocketNotifier> roomNotifier; ///< on while bytes wait for room
    QByteArray waiting;
    qsizetype sent = 0; ///< of the waiting bytes
};

} // namespace lanterra
