#include "park/access_log.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace lanterra {

AccessLog::AccessLog(const QString &path) : file(path) {
    if (!path.isEmpty() && !file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        errorText = u"can't write the log %1: %2"_s.arg(path, file.errorString());
}

void AccessLog::Write(const QByteArray &method, const QByteArray &path, int status, qint64 bytes) {
    if (!file.isOpen())
        return;
    QByteArray line = QDateTime::currentDateTime().toString(Qt::ISODateWithMs).toLatin1();
    line += ' ' + (method.isEmpty() ? "-" : method) + ' ' + (path.isEmpty() ? "-" : path);
    line += ' ' + (status == 0 ? "-" : QByteArray::number(status)) + ' ' + QByteArray::number(bytes) + '\n';
    file.write(line);
}

} // namespace lanterra
