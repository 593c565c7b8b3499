#include "tests/behaviours/client_fetch.h"

using namespace Qt::StringLiterals;

namespace lanterra {

ClientFetch::ClientFetch(const FetchCase &row, const QString &path,
                         const QList<QSslCertificate> &authorities) {
    client.SetTarget(row.address);
    client.SetSaveFile(path);
    client.SetCertificateAuthorities(authorities);
    if (row.proxyPort != 0) {
        client.SetProxyServer(u"127.0.0.1"_s);
        client.SetProxyPort(row.proxyPort);
    }
    connect(&client, &HttpClient::Connected, this, [this] { client.SendGet(); });
    connect(&client, &HttpClient::Data, this, [this](const QByteArray &block) {
        if (status == 0)
            status = block.mid(9, 3).toInt();
    });
    connect(&client, &HttpClient::Done, this, [this] { End(u"ok"_s, status, {}); });
    connect(&client, &HttpClient::Error, this, [this] { End(u"failed"_s, status, client.FailureReason()); });
    connect(&limit, &QTimer::timeout, this, [this] {
        client.Abort();
        End(u"time limit"_s, status, {});
    });
    limit.setSingleShot(true);
    limit.setTimerType(Qt::PreciseTimer);
    limit.start(row.Limit());
    client.ConnectToHost();
}

} // namespace lanterra
