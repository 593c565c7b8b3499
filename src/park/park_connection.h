#pragma once

#include "park/access_log.h"
#include "park/behaviour_player.h"
#include "park/exact_timer.h"
#include "park/park.h"
#include "park/request_reader.h"

#include <QBasicTimer>
#include <QObject>
#include <QTcpSocket>
#include <memory>

namespace lanterra {

/// Serves one peer: reads its requests one after the other and answers each. A request must be complete 30
/// seconds after the connection began or the peer took the answer before it. The object deletes itself when
/// the connection is gone.
class ParkConnection : public QObject {
    Q_OBJECT

public:
    /// `openSocket` is connected, or under its TLS handshake. `practicePark` and `accessLog` must outlive the
    /// connection. `latency` is in milliseconds.
    ParkConnection(std::unique_ptr<QTcpSocket> openSocket, Park &practicePark, AccessLog &accessLog,
                   int latency, QObject *parent);
    ~ParkConnection() override;
    Q_DISABLE_COPY_MOVE(ParkConnection)

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    enum class Phase { Reading, Answering, Sending, Leaving };

    void Receive();
    void ReadNext();
    void Read(const QByteArray &bytes);
    void BeginAnswer(HttpAnswer prepared);
    void SendAnswer();
    void Play(const QString &behaviourName);
    void Finish();

    const std::unique_ptr<QTcpSocket> socket;
    Park &park;
    AccessLog &log;
    int latencyMs;
    RequestReader reader;
    HttpRequest request; ///< the one that is being answered
    HttpAnswer answer;
    std::unique_ptr<BehaviourPlayer> player;
    QBasicTimer timer; ///< the patience with the peer
    ExactTimer delay;  ///< before the answer
    Phase phase = Phase::Reading;
};

} // namespace lanterra
