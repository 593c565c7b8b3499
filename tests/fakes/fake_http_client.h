#pragma once

#include "ports/http_client.h"

#include <functional>

namespace lanterra {

/// A client whose test plays the server: it raises the events itself, at any time and in any order. What the
/// program did to the client is kept in public counters.
class FakeHttpClient final : public HttpClient {
    Q_OBJECT

public:
    QString HostName() const override;
    QString ResponseText() const override { return responseText; }
    void SetResponseText(const QString &text) override { responseText = text; }
    qint64 BodyBytes() const override { return bodyBytes; }
    QString FailureReason() const override { return failureReason; }

    void ConnectToHost() override;
    void SendGet() override { sentMethod = QStringLiteral("GET"); }
    void SendPost() override { sentMethod = QStringLiteral("POST"); }
    void Abort() override { ++aborts; }
    void AbortWithError() override { ++errorAborts; }

    /// Writes the body to SaveFile as a real client does, and raises Data with the header and the body.
    void Receive(const QByteArray &header, const QByteArray &body = {});

    std::function<void(FakeHttpClient &)> onConnect; ///< called inside ConnectToHost
    int connects = 0;
    int aborts = 0;
    int errorAborts = 0;
    QString sentMethod; ///< of the last exchange, empty if nothing was sent
    QString failureReason = QStringLiteral("Connection refused");
    QString responseText;
    qint64 bodyBytes = 0;
};

} // namespace lanterra
