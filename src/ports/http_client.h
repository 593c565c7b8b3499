#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

namespace lanterra {

/// One HTTP exchange at a time, driven by its events.
///
/// The order of an exchange: the caller sets Target and SaveFile and calls ConnectToHost, which returns at
/// once. Connected comes when the connection stands; the handler sets RequestHeaders and calls SendGet or
/// SendPost. Then Data comes zero or more times, and at the end either Done followed by Closing, or Error
/// alone. No event is raised from inside the call that caused it, nor while a handler of the same exchange is
/// on the stack. A client may be deleted inside its own event. Events carry no identity of their exchange.
class HttpClient : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// The full address to fetch, with its scheme ("http" or "https"). Read back unchanged. An address that
    /// can't be used gives Error after ConnectToHost.
    const QString &Target() const { return target; }
    void SetTarget(const QString &address) { target = address; }

    /// The file that takes the decoded body. It is replaced once the answer's headers are complete, so a site
    /// that never answers leaves the old content. Empty for none. A file that can't be written changes no
    /// verdict.
    const QString &SaveFile() const { return saveFile; }
    void SetSaveFile(const QString &path) { saveFile = path; }

    /// What is sent behind the request line: header lines, each closed by CR LF, and with POST an empty line
    /// and the body at the end. Sent in this order and spelling. What is missing is added in front: a Host
    /// line, the Content-Type of a form for POST, and behind headers without a body the empty line that ends
    /// them.
    const QByteArray &RequestHeaders() const { return requestHeaders; }
    void SetRequestHeaders(const QByteArray &headers) { requestHeaders = headers; }

    /// The proxy's name or address, empty for none, and its port. Used from the next ConnectToHost on. A port
    /// outside 1 to 65535 leaves the old one.
    const QString &ProxyServer() const { return proxyServer; }
    void SetProxyServer(const QString &server) { proxyServer = server; }
    int ProxyPort() const { return proxyPort; }
    void SetProxyPort(int port);

    /// Two switches that every request of this program sets. They are part of the client's interface and have
    /// no effect.
    void SetRequestSwitchA(bool on) { requestSwitchA = on; }
    void SetRequestSwitchB(bool on) { requestSwitchB = on; }
    bool RequestSwitchA() const { return requestSwitchA; }
    bool RequestSwitchB() const { return requestSwitchB; }

    /// The host of Target, with the port if it isn't the scheme's own. Valid from Connected on.
    virtual QString HostName() const = 0;

    /// The body of the answer as text, filled only if KeepResponseText is on. Set to "" before a request.
    virtual QString ResponseText() const = 0;
    virtual void SetResponseText(const QString &text) = 0;

    /// Whether ResponseText is filled as the body arrives. Off at first, so that the memory of a client
    /// doesn't grow with the answer.
    void SetKeepResponseText(bool keep) { keepResponseText = keep; }
    bool KeepResponseText() const { return keepResponseText; }

    /// Bytes of decoded body received in this exchange so far.
    virtual qint64 BodyBytes() const = 0;

    /// After Error: one sentence that a person understands, without a full stop ("Connection refused").
    virtual QString FailureReason() const = 0;

    /// Begins the exchange. One that is still under way is aborted silently first.
    virtual void ConnectToHost() = 0;

    /// Send the request line of the method and RequestHeaders. Without effect unless called inside Connected.
    virtual void SendGet() = 0;
    virtual void SendPost() = 0;

    /// Ends the exchange, also on an idle client. Nothing more is raised for it, queued events included.
    virtual void Abort() = 0;

    /// Ends the exchange as Abort does, and raises Error at the next turn of the event queue if one was under
    /// way.
    virtual void AbortWithError() = 0;

signals:
    void Connected();
    /// Bytes of the answer as they came. The first block of an exchange holds the whole header of the final
    /// answer from its status line on (interim 1xx answers are skipped); the body behind it is not decoded
    /// from chunks.
    void Data(const QByteArray &block);
    void Done();
    void Closing();
    /// The exchange failed. `code` is a socket error less 10000 (see support/socket_errors.h).
    void Error(int code);

private:
    QString target;
    QString saveFile;
    QByteArray requestHeaders;
    QString proxyServer;
    int proxyPort = 80;
    bool requestSwitchA = false;
    bool requestSwitchB = false;
    bool keepResponseText = false;
};

} // namespace lanterra
