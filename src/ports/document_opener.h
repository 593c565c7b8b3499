#pragma once

#include <QString>
#include <QStringList>

namespace lanterra {

/// How an attempt to open a document ended.
enum class OpenResult {
    Opened,
    NoApplication, ///< no application belongs to this type of file
    Failed         ///< anything else; the caller stays silent
};

/// Starts other programs to show documents. No shell is involved. Both calls block while events go on, two
/// seconds at most: a program that still runs by then has worked.
class DocumentOpener {
public:
    virtual ~DocumentOpener() = default;

    /// Opens a file or an address with the desktop's application for it.
    virtual OpenResult OpenWithDefault(const QString &document) = 0;

    /// Starts `program` with `arguments`. A program that isn't there is Failed.
    virtual OpenResult Start(const QString &program, const QStringList &arguments) = 0;
};

} // namespace lanterra
