#pragma once

#include "controls/list_box.h"

#include <QFileSystemWatcher>

namespace lanterra {

/// The names of the files of one folder, in alphabetical order. The list follows the folder.
class FileList : public ListBox {
    Q_OBJECT

public:
    FileList();

    /// Shows the files of a folder from now on. One that can't be read has none.
    void SetPath(const QString &folder);

    /// Reads the folder anew. The current entry stays current if its file is still there.
    void Refresh();

private:
    QString path;
    QFileSystemWatcher watcher;
};

} // namespace lanterra
