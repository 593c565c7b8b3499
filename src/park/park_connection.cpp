#include "park/park_connection.h"

#include "park/socket_endings.h"
#include "park/socket_output.h"

#include <QTimerEvent>

namespace lanterra {

namespace {

constexpr int patience = 30'000;     // milliseconds for a whole request, or to take a whole answer
constexpr int drainTime = 2'000;     // milliseconds in which a refused peer may still read its answer
constexpr qint64 readAhead = 65'536; // bytes that a peer may send while it is being answered

} // namespace

ParkConnection::ParkConnection(std::unique_ptr<QTcpSocket> openSocket, Park &practicePark,
                               AccessLog &accessLog, int latency, QObject *parent)
    : QObject(parent), socket(std::move(openSocket)), park(practicePark), log(accessLog), latencyMs(latency) {
    socket->setReadBufferSize(readAhead);
    connect(socket.get(), &QTcpSocket::readyRead, this, &ParkConnection::Receive);
    WhenBytesAreSent(*socket, this, [this] { ReadNext(); });
    connect(&delay, &ExactTimer::Elapsed, this, &ParkConnection::SendAnswer);
    connect(socket.get(), &QTcpSocket::disconnected, this, &ParkConnection::deleteLater);
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    timer.start(patience, Qt::CoarseTimer, this);
}

ParkConnection::~ParkConnection() {
    socket->disconnect(this);
    if (player != nullptr)
        log.Write(request.method, request.path, 0, player->BytesSent());
}

void ParkConnection::timerEvent(QTimerEvent *event) {
    if (event->timerId() != timer.timerId())
        return;
    timer.stop();
    if (phase == Phase::Reading && reader.HasBegun())
        BeginAnswer(park.Refuse(408));
    else
        socket->abort();
}

void ParkConnection::Receive() {
    if (phase == Phase::Reading)
        Read(socket->readAll());
    else if (phase == Phase::Leaving || player != nullptr)
        socket->skip(socket->bytesAvailable());
}

// An answer that the peer doesn't take holds its next requests back; else they would pile up answers here.
void ParkConnection::ReadNext() {
    if (phase != Phase::Sending || UnsentBytes(*socket) > 0)
        return;
    phase = Phase::Reading;
    timer.start(patience, Qt::CoarseTimer, this);
    Receive();
}

void ParkConnection::Read(const QByteArray &bytes) {
    const RequestReader::State state = reader.Add(bytes);
    if (state == RequestReader::State::Refused) {
        request = reader.Request();
        return BeginAnswer(park.Refuse(reader.RefusalStatus()));
    }
    if (state == RequestReader::State::Complete) {
        request = reader.TakeRequest();
        return BeginAnswer(park.Answer(request));
    }
    const Behaviour *behaviour = park.BehaviourAt(reader.Request().path);
    if (behaviour != nullptr && behaviour->early) {
        request = reader.Request();
        BeginAnswer(park.Answer(request));
    }
}

void ParkConnection::BeginAnswer(HttpAnswer prepared) {
    phase = Phase::Answering;
    answer = std::move(prepared);
    timer.stop();
    const std::chrono::milliseconds wait(latencyMs + answer.delay);
    if (wait == wait.zero())
        return SendAnswer();
    delay.Start(wait);
}

void ParkConnection::SendAnswer() {
    if (!answer.behaviour.isEmpty())
        return Play(answer.behaviour);
    const QByteArray bytes = AnswerBytes(request, answer);
    log.Write(request.method, request.path, answer.status, bytes.size());
    socket->write(bytes);
    Finish();
}

void ParkConnection::Play(const QString &behaviourName) {
    const Behaviour *behaviour = park.BehaviourNamed(behaviourName);
    Q_ASSERT(behaviour != nullptr);
    player = std::make_unique<BehaviourPlayer>(*behaviour, *socket);
    player->Start();
}

// Leaves the connection as the answer told: open for the next request, or closed.
void ParkConnection::Finish() {
    timer.start(patience, Qt::CoarseTimer, this);
    phase = KeepsAlive(request, answer) ? Phase::Sending : Phase::Leaving;
    if (phase == Phase::Sending) {
        socket->flush();
        return;
    }
    if (answer.status < 400)
        return socket->disconnectFromHost();
    timer.start(drainTime, Qt::CoarseTimer, this);
    EndSending(*socket);
}

} // namespace lanterra
