#include "platform/socket_http_client.h"

#include "platform/http_exchange.h"
#include "platform/request_text.h"
#include "support/code_page.h"

namespace lanterra {

SocketHttpClient::SocketHttpClient(QObject *parent) : HttpClient(parent) {}

SocketHttpClient::~SocketHttpClient() = default;

QString SocketHttpClient::HostName() const { return address.HostName(); }

void SocketHttpClient::ConnectToHost() {
    NewExchange();
    QString problem;
    const std::optional<TargetAddress> parsed = ParseTarget(Target(), problem);
    address = parsed.value_or(TargetAddress());
    if (!parsed) {
        exchange->Fail(BadAnswer(problem));
        return;
    }
    const QString proxyName = ProxyServer().trimmed();
    const ProxyAddress proxy = {AsciiHost(proxyName), static_cast<quint16>(ProxyPort())};
    if (proxy.host.isEmpty() && !proxyName.isEmpty()) {
        exchange->Fail(ProxyFailure(QAbstractSocket::HostNotFoundError));
        return;
    }
    throughHttpProxy = !proxy.host.isEmpty() && !address.secure;
    exchange->Start(std::make_unique<Connection>(address, proxy, authorities));
}

void SocketHttpClient::NewExchange() {
    bodyBytes = 0;
    responseText.clear();
    failureReason.clear();
    exchange = std::make_unique<HttpExchange>(SaveFile());
    connect(exchange.get(), &HttpExchange::Connected, this, &HttpClient::Connected);
    connect(exchange.get(), &HttpExchange::Data, this, &HttpClient::Data);
    connect(exchange.get(), &HttpExchange::BodyArrived, this, &SocketHttpClient::TakeBody);
    connect(exchange.get(), &HttpExchange::Done, this, &HttpClient::Done);
    connect(exchange.get(), &HttpExchange::Closing, this, &HttpClient::Closing);
    connect(exchange.get(), &HttpExchange::Failed, this, &SocketHttpClient::TakeFailure);
}

void SocketHttpClient::Send(const QByteArray &method) {
    if (exchange)
        exchange->Send(RequestText({method, Target(), RequestHeaders(), throughHttpProxy}, address));
}

void SocketHttpClient::TakeBody(QByteArrayView piece) {
    bodyBytes += piece.size();
    if (KeepResponseText())
        responseText += CodePage::Decode(piece);
}

void SocketHttpClient::TakeFailure(const Failure &failure) {
    failureReason = failure.reason;
    emit Error(failure.code);
}

void SocketHttpClient::Abort() { exchange.reset(); }

void SocketHttpClient::AbortWithError() {
    if (exchange && exchange->IsUnderWay())
        exchange->Fail(Aborted());
    else
        exchange.reset();
}

} // namespace lanterra
