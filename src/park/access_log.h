#pragma once

#include <QFile>
#include <QString>

namespace lanterra {

/// One line a request: time, method, path, status, bytes sent, separated by single blanks. A status of "-" is
/// a connection without an HTTP answer of the server's own.
class AccessLog {
public:
    /// Opens the file for appending; an empty path is a log that keeps nothing. What fails is in ErrorText.
    explicit AccessLog(const QString &path);

    /// Empty unless the file could not be opened.
    QString ErrorText() const { return errorText; }

    void Write(const QByteArray &method, const QByteArray &path, int status, qint64 bytes);

private:
    QFile file;
    QString errorText;
};

} // namespace lanterra
