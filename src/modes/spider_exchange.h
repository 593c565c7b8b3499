#pragma once

#include "ports/http_client.h"

#include <memory>

namespace lanterra {

/// One request of the spider.
struct SpiderRequest {
    QString address; ///< with the whole request; what stands behind "?" is the body of a POST
    bool post = false;
    QString referrer; ///< page that it names as the one it comes from, empty for none
    QString answerFile;
};

/// Carries one request of the spider after the other, over a client of its own.
class SpiderExchange : public QObject {
    Q_OBJECT

public:
    explicit SpiderExchange(std::unique_ptr<HttpClient> httpClient);

    /// Begins a request and returns at once. One that is still under way is given up silently.
    void Begin(const SpiderRequest &newRequest);

    /// Ends the request silently.
    void Abort() { client->Abort(); }

    HttpClient &Client() { return *client; }

signals:
    /// What it does now, in a word.
    void Progressed(const QString &state);
    /// The request has ended. An empty problem means a complete answer of whatever status; otherwise it is a
    /// sentence without a full stop. The next request may be begun in the handler.
    void Ended(const QString &problem);

private:
    void Send();

    std::unique_ptr<HttpClient> client;
    SpiderRequest request;
};

} // namespace lanterra
