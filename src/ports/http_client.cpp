#include "ports/http_client.h"

namespace lanterra {

void HttpClient::SetProxyPort(int port) {
    if (port >= 1 && port <= 65535)
        proxyPort = port;
}

} // namespace lanterra
