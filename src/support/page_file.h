#pragma once

#include <QByteArrayView>
#include <QFile>

namespace lanterra {

/// A page that is written anew in its place. Only a plain file of a single name is written over; anything
/// else that bears the name, a link above all, is replaced by a new file, so nothing is ever written through
/// it. What can't be written is passed over in silence: no verdict comes from the disk.
///
/// A run writes each of its pages twice, hundreds of them in a row, and a file system that has just seen as
/// many deleted is slow to give out new ones: up to 3 ms each were seen, where writing over takes 10 us.
class PageFile {
public:
    PageFile() = default;
    ~PageFile() { Close(); }
    Q_DISABLE_COPY_MOVE(PageFile)

    /// Opens the page at `path`. An empty path writes nothing. A folder in its place stays.
    void Open(const QString &path);

    /// Writes at once, without a buffer. The first bytes take the place of the old page. After a failure
    /// nothing more is written.
    void Write(QByteArrayView bytes);

    /// A page that nothing was written to is empty now.
    void Close();

private:
    QFile file;
};

} // namespace lanterra
