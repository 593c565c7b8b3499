#pragma once

#include "park/behaviour.h"

#include <QBasicTimer>
#include <QObject>
#include <QTcpSocket>

namespace lanterra {

/// Plays one behaviour on a socket. Memory stays flat however much it sends, since it writes on only while
/// the peer takes it. The peer's close ends everything, and twenty minutes after the start the connection is
/// cut.
class BehaviourPlayer : public QObject {
    Q_OBJECT

public:
    /// `behaviour` and `socket` must outlive the player.
    BehaviourPlayer(const Behaviour &behaviour, QTcpSocket &socket);

    void Start();

    /// Bytes written so far.
    qint64 BytesSent() const { return bytesSent; }

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void Continue();
    /// Writes what may be written of the step. True once the step is through.
    bool Play(const BehaviourStep &step);
    void WriteBlock(const BehaviourStep &step);
    void End();

    const Behaviour &script;
    QTcpSocket &peer;
    QBasicTimer pauseTimer;
    QBasicTimer lifeTimer;
    qsizetype stepIndex = 0;
    qint64 sentOfStep = 0;
    qint64 bytesSent = 0;
    bool ended = false;
};

} // namespace lanterra
