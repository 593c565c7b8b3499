#pragma once

#include "platform/socket_http_client.h"
#include "tests/behaviours/fetch.h"

#include <QTimer>

namespace lanterra {

/// One case fetched with the program's own client.
class ClientFetch final : public FetchJob {
    Q_OBJECT

public:
    ClientFetch(const FetchCase &row, const QString &path, const QList<QSslCertificate> &authorities);

private:
    SocketHttpClient client;
    QTimer limit;
    int status = 0;
};

} // namespace lanterra
