#pragma once

#include "park/behaviour_player.h"

#include <QBasicTimer>
#include <QObject>
#include <QTcpSocket>

namespace lanterra {

/// Plays one behaviour to one peer, whatever it asks: from its first byte on, or at once if the behaviour is
/// an early one. A peer that says nothing for 30 seconds is cut off. The object deletes itself when the
/// connection is gone.
class ScriptConnection : public QObject {
    Q_OBJECT

public:
    /// `behaviour` must outlive the connection.
    ScriptConnection(qintptr descriptor, const Behaviour &behaviour, QObject *parent);
    ~ScriptConnection() override;
    Q_DISABLE_COPY_MOVE(ScriptConnection)

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void Receive();
    void Begin();

    QTcpSocket socket;
    BehaviourPlayer player;
    QBasicTimer patienceTimer;
    bool begun = false;
};

} // namespace lanterra
