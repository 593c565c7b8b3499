#include "support/socket_errors.h"

#include <QFile>
#include <QStringList>
#include <map>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

struct Row {
    QString constantName;
    QString text;
};

/// One line a row: code, constant name and text, parted by tabs.
std::map<int, Row> ReadTable() {
    std::map<int, Row> rows;
    QFile file(u":/support/socket_errors.txt"_s);
    if (!file.open(QIODevice::ReadOnly))
        return rows;
    const QString text = QString::fromLatin1(file.readAll());
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList columns = line.split(u'\t');
        rows[columns.value(0).toInt()] = {columns.value(1), columns.value(2)};
    }
    return rows;
}

} // namespace

QString SocketErrorText(int code, QString *constantName) {
    static const std::map<int, Row> rows = ReadTable();
    const auto found = rows.find(code);
    if (constantName)
        *constantName = found == rows.end() ? QString() : found->second.constantName;
    return found == rows.end() ? u"Unknown Error"_s : found->second.text;
}

int SocketErrorCode(QAbstractSocket::SocketError error) {
    switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
        return 61;
    case QAbstractSocket::RemoteHostClosedError:
        return 54;
    case QAbstractSocket::HostNotFoundError:
        return 1001;
    case QAbstractSocket::SocketTimeoutError:
        return 60;
    case QAbstractSocket::NetworkError:
        return 65;
    case QAbstractSocket::SocketAccessError:
        return 13;
    case QAbstractSocket::SocketResourceError:
        return 55;
    case QAbstractSocket::AddressInUseError:
        return 48;
    case QAbstractSocket::SocketAddressNotAvailableError:
        return 49;
    case QAbstractSocket::UnsupportedSocketOperationError:
        return 45;
    default:
        return -1;
    }
}

} // namespace lanterra
