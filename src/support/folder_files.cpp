#include "support/folder_files.h"

#include <QDir>

namespace lanterra {

void DeleteFilesIn(const QString &folder) {
    constexpr auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const QFileInfoList entries = QDir(folder).entryInfoList(everything);
    for (const QFileInfo &entry : entries) {
        if (entry.isSymLink() || entry.isFile())
            QFile::remove(entry.filePath());
    }
}

} // namespace lanterra
