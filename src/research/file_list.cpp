#include "research/file_list.h"

#include <QDir>

namespace lanterra {

FileList::FileList() : ListBox(Marks::None) {
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this, &FileList::Refresh);
}

void FileList::SetPath(const QString &folder) {
    if (!watcher.directories().isEmpty())
        watcher.removePaths(watcher.directories());
    path = folder;
    if (QDir(path).exists())
        watcher.addPath(path);
    Refresh();
}

void FileList::Refresh() {
    if (path.isEmpty())
        return;
    const QStringList names = QDir(path).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    if (names == Items())
        return;
    const QString current = Text();
    SetItems(names);
    SetText(current);
}

} // namespace lanterra
