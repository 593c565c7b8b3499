#pragma once

#include <QString>

namespace lanterra {

/// Whether a file of this path exists, or a folder if `directory` is set. False for an empty path, and for a
/// path that ends in a separator when a file is asked for.
bool FileExists(const QString &path, bool directory = false);

/// The part of `text` behind its last `separator`, the whole text if it has none. With `stripExtension` what
/// stands before the last dot of that part; a part without a dot then gives the empty text.
QString GetFileName(const QString &text, QChar separator, bool stripExtension);

/// A path cut for display: as much of its left as fits, "...", a separator, and the whole file name, so that
/// the result is shorter than `maximum` where the name allows it.
QString ShortenPath(const QString &path, int maximum, QChar separator);

/// `text` with every item of `list` replaced by `replacement`, ignoring case. The items are separated by the
/// letter X in either case, which therefore can't be an item. An empty list stands for the characters that
/// file names are cleaned of.
QString RemoveChars(const QString &text, const QString &replacement = {}, const QString &list = {});

/// A "file:///" address of the path: backslashes become slashes, and exactly one slash more than "file://"
/// stands before a path that begins with a slash. A text that already holds "file:///" only has its
/// backslashes turned.
QString PathToFileUrl(const QString &path);

/// Whether a file of this name can exist on every platform: not empty, not "." or "..", and without
/// / \ : * ? " < > |, control characters and halves of surrogate pairs. What keeps names out of a database
/// inside their folder.
bool CanBeFileName(const QString &name);

/// Whether two paths name one existing file, links followed.
bool IsSameFile(const QString &first, const QString &second);

/// Tells a file from another one that took its name. Kept by the file system while the file is open.
struct FileIdentity {
    quint64 device = 0;
    quint64 number = 0;

    bool operator==(const FileIdentity &) const = default;
};

/// The identity of the file that the path leads to, links followed; all zeros if there is none.
FileIdentity IdentityOf(const QString &path);

} // namespace lanterra
