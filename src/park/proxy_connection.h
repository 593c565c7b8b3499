#pragma once

#include "park/access_log.h"
#include "platform/connection.h"

#include <QBasicTimer>
#include <QObject>
#include <QTcpSocket>
#include <functional>
#include <memory>

namespace lanterra {

/// Serves one peer of the practice proxy: a request for an http address, or a CONNECT. From the request on it
/// passes bytes in both directions unchanged, and the server's end, whether close or reset, becomes its own.
/// A further request on the same connection goes to the same server. It leads to ports of this computer that
/// are granted and answers 403 to any other address. The object deletes itself when the connection is gone.
class ProxyConnection : public QObject {
    Q_OBJECT

public:
    using PortFilter = std::function<bool(quint16)>;

    /// `grantedPorts` says whether a port may be reached. `accessLog` must outlive the connection.
    ProxyConnection(qintptr descriptor, PortFilter grantedPorts, AccessLog &accessLog, QObject *parent);
    ~ProxyConnection() override;
    Q_DISABLE_COPY_MOVE(ProxyConnection)

signals:
    /// For its own use: comes back as Advance.
    void TurnAsked();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void Receive();
    void BeginRequest();
    void Reach(quint16 port);
    void Advance();
    void BeginRelay();
    void PassAnswerOn();
    void EndAsTheServerDid();
    void Refuse(int status, const QByteArray &words);

    QTcpSocket peer;
    PortFilter granted;
    AccessLog &log;
    std::unique_ptr<Connection> server; ///< none until the request is read
    QByteArray request;                 ///< what came of it, until the server is reached
    QByteArray method;
    QByteArray target;
    qint64 bytesUp = 0;
    qint64 bytesDown = 0;
    bool relaying = false;
    bool leaving = false;
    QBasicTimer patienceTimer;
};

} // namespace lanterra
