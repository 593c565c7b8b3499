#include "modes/spider_exchange.h"

#include "submission/request_headers.h"
#include "support/code_page.h"

using namespace Qt::StringLiterals;

namespace lanterra {

SpiderExchange::SpiderExchange(std::unique_ptr<HttpClient> httpClient) : client(std::move(httpClient)) {
    connect(client.get(), &HttpClient::Connected, this, &SpiderExchange::Send);
    connect(client.get(), &HttpClient::Data, this, [this] { emit Progressed(u"receiving"_s); });
    connect(client.get(), &HttpClient::Done, this, [this] { emit Ended(QString()); });
    connect(client.get(), &HttpClient::Error, this, [this] { emit Ended(client->FailureReason()); });
}

void SpiderExchange::Begin(const SpiderRequest &newRequest) {
    request = newRequest;
    client->SetTarget(request.post ? request.address.section(u'?', 0, 0) : request.address);
    client->SetSaveFile(request.answerFile);
    client->SetRequestSwitchA(true);
    client->SetRequestSwitchB(true);
    emit Progressed(u"connecting"_s);
    client->ConnectToHost();
}

void SpiderExchange::Send() {
    QByteArray headers = "Host: " + HeaderValue(client->HostName()) + "\r\n";
    if (!request.referrer.isEmpty())
        headers += "Referer: " + HeaderValue(request.referrer) + "\r\n";
    emit Progressed(u"waiting for the answer"_s);
    if (!request.post) {
        client->SetRequestHeaders(headers);
        client->SendGet();
        return;
    }
    const QByteArray body = CodePage::Encode(request.address.section(u'?', 1));
    client->SetRequestHeaders(headers +
                              "Content-Type: application/x-www-form-urlencoded\r\nContent-Length: " +
                              QByteArray::number(body.size()) + "\r\n\r\n" + body);
    client->SendPost();
}

} // namespace lanterra
