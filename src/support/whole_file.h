#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

namespace lanterra {

/// Replaces one file whole: what is written goes to a file beside it that takes its name at Commit, so a
/// crash or a full disk leaves the old file. Without Commit, or after any failure, the old file stays. A link
/// in its place is replaced by a file and not followed. The new file has the permissions of the old one, or
/// those of any new file.
class WholeFile {
public:
    explicit WholeFile(const QString &path);

    /// False once any step has failed; later calls then do nothing. Commit ends the writing.
    bool Write(const QByteArray &bytes);
    bool Commit();

private:
    QString target;
    QSaveFile file;
    bool good = false;
};

/// Replaces the file by these bytes. False, with the old file untouched, if that failed.
bool WriteWholeFile(const QString &path, const QByteArray &bytes);

/// Replaces `destination` by a copy of `source`, whole. False, with the destination untouched, if `source`
/// can't be read, if it is the same file, or if the copy could not be written.
bool CopyWholeFile(const QString &source, const QString &destination);

} // namespace lanterra
