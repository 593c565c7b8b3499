#include "park/proxy_connection.h"

#include "park/socket_endings.h"
#include "park/socket_output.h"

#include <QTimerEvent>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int patience = 30'000;               // milliseconds for a request, or to take a refusal
constexpr qsizetype headLimit = 65'536;        // bytes
constexpr qint64 sendAheadLimit = 262'144;     // bytes
constexpr qint64 upwardLimit = 16LL * 1048576; // bytes; far more than the practice web takes of a request

/// The port of this computer that the request is for, 0 if it is for another one.
quint16 PortOf(const QByteArray &method, const QByteArray &target) {
    const bool tunnel = method == "CONNECT";
    if (!tunnel && !target.startsWith("http://"))
        return 0;
    QString problem;
    const auto address = ParseTarget(QString::fromLatin1(tunnel ? "http://" + target : target), problem);
    const bool here = address && (address->host == u"127.0.0.1" || address->host == u"localhost");
    return here ? address->port : 0;
}

} // namespace

ProxyConnection::ProxyConnection(qintptr descriptor, PortFilter grantedPorts, AccessLog &accessLog,
                                 QObject *parent)
    : QObject(parent), granted(std::move(grantedPorts)), log(accessLog) {
    peer.setReadBufferSize(headLimit);
    connect(&peer, &QTcpSocket::readyRead, this, &ProxyConnection::Receive);
    connect(&peer, &QTcpSocket::disconnected, this, [this] {
        leaving = true;
        deleteLater();
    });
    connect(this, &ProxyConnection::TurnAsked, this, &ProxyConnection::Advance, Qt::QueuedConnection);
    WhenBytesAreSent(peer, this, [this] { Advance(); });
    if (!peer.setSocketDescriptor(descriptor)) {
        deleteLater();
        return;
    }
    peer.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    patienceTimer.start(patience, Qt::CoarseTimer, this);
}

ProxyConnection::~ProxyConnection() {
    peer.disconnect(this);
    if (relaying)
        log.Write(method, target, 0, bytesDown);
}

void ProxyConnection::timerEvent(QTimerEvent *event) {
    if (event->timerId() == patienceTimer.timerId())
        peer.abort();
}

void ProxyConnection::Receive() {
    if (leaving) {
        peer.skip(peer.bytesAvailable());
    } else if (relaying) {
        const QByteArray block = peer.readAll();
        bytesUp += block.size();
        if (bytesUp > upwardLimit)
            return peer.abort();
        server->Write(block);
    } else if (server == nullptr) {
        request += peer.readAll();
        if (request.contains("\r\n\r\n"))
            BeginRequest();
        else if (request.size() > headLimit)
            Refuse(431, "Request Header Fields Too Large");
    }
}

void ProxyConnection::BeginRequest() {
    const QList<QByteArray> words = request.left(request.indexOf('\r')).split(' ');
    if (words.size() != 3 || !words[2].startsWith("HTTP/1."))
        return Refuse(400, "Bad Request");
    method = words[0];
    target = words[1];
    const quint16 port = PortOf(method, target);
    if (port == 0 || !granted(port))
        return Refuse(403, "This Proxy Leads To The Practice Web Only");
    Reach(port);
}

void ProxyConnection::Reach(quint16 port) {
    TargetAddress address;
    address.host = u"127.0.0.1"_s;
    address.port = port;
    server = std::make_unique<Connection>(address, ProxyAddress(), QList<QSslCertificate>());
    connect(server.get(), &Connection::Changed, this, &ProxyConnection::TurnAsked);
    server->Open();
}

void ProxyConnection::Advance() {
    if (server == nullptr || leaving)
        return;
    if (!relaying && server->Stands())
        BeginRelay();
    if (relaying)
        PassAnswerOn();
    else if (server->HasEnded())
        Refuse(502, "Bad Gateway");
}

void ProxyConnection::BeginRelay() {
    relaying = true;
    patienceTimer.stop();
    if (method == "CONNECT") {
        peer.write("HTTP/1.1 200 Connection Established\r\n\r\n");
        request.remove(0, request.indexOf("\r\n\r\n") + 4);
    }
    server->Write(request);
    request.clear();
    Receive();
}

void ProxyConnection::PassAnswerOn() {
    while (UnsentBytes(peer) < sendAheadLimit) {
        const QByteArray block = server->Read();
        if (block.isEmpty()) {
            if (server->HasEnded())
                EndAsTheServerDid();
            return;
        }
        bytesDown += peer.write(block);
    }
}

void ProxyConnection::EndAsTheServerDid() {
    leaving = true;
    peer.flush();
    if (server->EndedInOrder())
        peer.disconnectFromHost();
    else
        ResetConnection(peer);
}

void ProxyConnection::Refuse(int status, const QByteArray &words) {
    leaving = true;
    const QByteArray page = words + '\n';
    peer.write("HTTP/1.1 " + QByteArray::number(status) + ' ' + words +
               "\r\nContent-Type: text/plain\r\nConnection: close\r\nContent-Length: " +
               QByteArray::number(page.size()) + "\r\n\r\n" + page);
    log.Write(method, target, status, page.size());
    patienceTimer.start(patience, Qt::CoarseTimer, this);
    EndSending(peer);
}

} // namespace lanterra
