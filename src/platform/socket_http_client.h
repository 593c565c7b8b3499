#pragma once

#include "platform/target_address.h"
#include "ports/http_client.h"

#include <QList>
#include <QSslCertificate>
#include <memory>

namespace lanterra {

class HttpExchange;
struct Failure;

/// The HTTP client of the running program: HTTP/1.1 over sockets of the system, one connection an exchange.
/// It needs a running event queue. Nothing is ever sent a second time by itself, no redirection is followed,
/// and the time limit is the caller's matter (Abort), also for a connection that nobody accepts.
class SocketHttpClient final : public HttpClient {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SocketHttpClient)

public:
    explicit SocketHttpClient(QObject *parent = nullptr);
    ~SocketHttpClient() override;

    /// Checks the certificates of https servers against these alone; against the system's if the list is
    /// empty, as at first. For a web of one's own with its own authority. Used from the next ConnectToHost
    /// on.
    void SetCertificateAuthorities(const QList<QSslCertificate> &certificates) { authorities = certificates; }

    QString HostName() const override;
    QString ResponseText() const override { return responseText; }
    void SetResponseText(const QString &text) override { responseText = text; }
    qint64 BodyBytes() const override { return bodyBytes; }
    QString FailureReason() const override { return failureReason; }

    void ConnectToHost() override;
    void SendGet() override { Send("GET"); }
    void SendPost() override { Send("POST"); }
    void Abort() override;
    void AbortWithError() override;

private:
    void NewExchange();
    void Send(const QByteArray &method);
    void TakeBody(QByteArrayView piece);
    void TakeFailure(const Failure &failure);

    QList<QSslCertificate> authorities;
    std::unique_ptr<HttpExchange> exchange; ///< the one under way, or the last one
    TargetAddress address;                  ///< of that exchange
    bool throughHttpProxy = false;          ///< the request goes to a proxy that fetches the page itself
    qint64 bodyBytes = 0;
    QString responseText;
    QString failureReason;
};

} // namespace lanterra
