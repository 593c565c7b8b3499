#pragma once

#include <QByteArrayView>
#include <QFile>

namespace lanterra {

/// The page file of one exchange. It is a new file that takes the place of whatever bears its name, so a link
/// there is replaced and nothing is ever written through it. What can't be written is passed over in silence:
/// the verdict on a site comes from its answer, not from the disk.
class BodyFile {
public:
    /// Replaces the file at `path` by an empty one. An empty path writes nothing. A folder in its place
    /// stays.
    void Open(const QString &path);

    /// Writes at once, without a buffer. After the first failure nothing more is written.
    void Write(QByteArrayView bytes);

    void Close();

private:
    QFile file;
};

} // namespace lanterra
