#include "platform/proxy_tunnel.h"

namespace lanterra {

using namespace Qt::StringLiterals;

QByteArray ProxyTunnel::Request(const TargetAddress &address) {
    const QByteArray server = address.HostAndPort().toLatin1();
    return "CONNECT " + server + " HTTP/1.1\r\nHost: " + server + "\r\n\r\n";
}

ProxyTunnel::State ProxyTunnel::Read(QByteArrayView input) {
    const HeaderReader::State state = headers.Read(input);
    if (state == HeaderReader::State::Reading)
        return State::Reading;
    const int status = headers.Header().status;
    if (state == HeaderReader::State::Failed)
        problem = u"The proxy's answer can't be understood: "_s + headers.Problem();
    else if (status / 100 != 2)
        problem = u"The proxy refused the connection (%1)"_s.arg(status);
    else if (!input.isEmpty())
        problem = u"The proxy's answer can't be understood: it is too long"_s;
    return problem.isEmpty() ? State::Open : State::Refused;
}

} // namespace lanterra
