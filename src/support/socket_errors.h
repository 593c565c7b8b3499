#pragma once

#include <QAbstractSocket>
#include <QString>

namespace lanterra {

/// The English text of a socket error, from the table of the WinSock standard. `code` is the standard's
/// number less 10000. A code that isn't in the table gives "Unknown Error". If `constantName` is given it
/// receives the standard's name of the code, empty for an unknown one.
QString SocketErrorText(int code, QString *constantName = nullptr);

/// The code for an error of Qt's sockets; -1, which no table row has, where there is no counterpart.
int SocketErrorCode(QAbstractSocket::SocketError error);

} // namespace lanterra
