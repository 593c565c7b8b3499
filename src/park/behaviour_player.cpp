#include "park/behaviour_player.h"

#include "park/socket_endings.h"
#include "park/socket_output.h"

#include <QTimerEvent>

namespace lanterra {

namespace {

constexpr qint64 sendAheadLimit = 262'144;
constexpr int longestLife =
    1'200'000; // milliseconds; beyond the longest time limit of a run, which is 1,000 s

} // namespace

BehaviourPlayer::BehaviourPlayer(const Behaviour &behaviour, QTcpSocket &socket)
    : script(behaviour), peer(socket) {
    WhenBytesAreSent(peer, this, [this] { Continue(); });
}

void BehaviourPlayer::Start() {
    lifeTimer.start(longestLife, Qt::CoarseTimer, this);
    Continue();
}

void BehaviourPlayer::timerEvent(QTimerEvent *event) {
    if (event->timerId() == lifeTimer.timerId())
        return peer.abort();
    if (event->timerId() != pauseTimer.timerId())
        return;
    pauseTimer.stop();
    Continue();
}

void BehaviourPlayer::Continue() {
    while (!ended && !pauseTimer.isActive() && peer.state() == QAbstractSocket::ConnectedState) {
        if (stepIndex == script.steps.size())
            return End();
        if (!Play(script.steps[stepIndex]))
            return;
        ++stepIndex;
        sentOfStep = 0;
    }
}

bool BehaviourPlayer::Play(const BehaviourStep &step) {
    while (sentOfStep < step.total) {
        if (UnsentBytes(peer) > sendAheadLimit)
            return false;
        WriteBlock(step);
        if (step.pause > 0)
            break;
    }
    if (step.pause > 0)
        pauseTimer.start(step.pause, Qt::PreciseTimer, this);
    return sentOfStep == step.total;
}

void BehaviourPlayer::WriteBlock(const BehaviourStep &step) {
    const qint64 start = sentOfStep % step.block.size();
    const qint64 length = step.oneByOne ? 1 : qMin(step.block.size() - start, step.total - sentOfStep);
    peer.write(step.block.constData() + start, length);
    sentOfStep += length;
    bytesSent += length;
    if (step.pause > 0)
        peer.flush();
}

void BehaviourPlayer::End() {
    ended = true;
    peer.flush();
    if (script.end == BehaviourEnd::Reset)
        ResetConnection(peer);
    else if (script.end == BehaviourEnd::Close)
        peer.disconnectFromHost();
}

} // namespace lanterra
