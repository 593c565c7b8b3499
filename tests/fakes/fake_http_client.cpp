#include "tests/fakes/fake_http_client.h"

#include <QFile>
#include <QUrl>

namespace lanterra {

QString FakeHttpClient::HostName() const {
    const QUrl url(Target());
    return url.port() < 0 ? url.host() : url.host() + QStringLiteral(":%1").arg(url.port());
}

void FakeHttpClient::ConnectToHost() {
    ++connects;
    sentMethod.clear();
    bodyBytes = 0;
    if (onConnect)
        onConnect(*this);
}

void FakeHttpClient::Receive(const QByteArray &header, const QByteArray &body) {
    if (QFile file(SaveFile()); !SaveFile().isEmpty() && file.open(QIODevice::WriteOnly))
        file.write(body);
    bodyBytes += body.size();
    emit Data(header + body);
}

} // namespace lanterra
