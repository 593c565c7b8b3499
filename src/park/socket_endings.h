#pragma once

#include <QTcpSocket>

namespace lanterra {

/// Ends the connection with a reset in place of an orderly close. What was written and is still on its way
/// may be lost for the peer.
void ResetConnection(QTcpSocket &socket);

/// Tells the peer that nothing more comes, and keeps receiving. Closing at once while bytes of the peer are
/// unread would be a reset and could take the answer away from it. With TLS it closes all the same: there,
/// an end without the closing alert would count as a cut.
void EndSending(QTcpSocket &socket);

} // namespace lanterra
