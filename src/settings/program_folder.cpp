#include "settings/program_folder.h"

#include "support/file_names.h"
#include "support/whole_file.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStandardPaths>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr auto masterName = "ng.dll"_L1;
constexpr auto engineName = "engine.dat"_L1;
constexpr auto helpFile = "lanterra.hlp"_L1;
constexpr std::array ownFolders{"Report/"_L1, "help/"_L1}; ///< whose files come from the program alone

/// The copy keeps the source's time, so that a later look tells whether another file was installed since.
bool CopyWithTime(const QString &source, const QString &destination) {
    if (!QDir().mkpath(QFileInfo(destination).path()) || !CopyWholeFile(source, destination))
        return false;
    QFile copy(destination);
    return copy.open(QIODevice::ReadWrite) &&
           copy.setFileTime(QFileInfo(source).lastModified(), QFileDevice::FileModificationTime);
}

} // namespace

ProgramFolder::Places ProgramFolder::Places::OfSystem(const QString &givenFolder) {
    const QString executable = QCoreApplication::applicationDirPath();
    return {.given = givenFolder,
            .environment = qEnvironmentVariable("LANTERRA_HOME"),
            .executable = executable,
            .documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
            .share = QDir(executable).filePath(u"../share/lanterra"_s)};
}

ProgramFolder::ProgramFolder(const Places &systemPlaces) : places(systemPlaces) {
    if (!places.given.isEmpty()) {
        path = places.given;
    } else if (!places.environment.isEmpty()) {
        path = places.environment;
    } else if (FileExists(QDir(places.executable).filePath(masterName))) {
        path = places.executable;
    } else {
        path = QDir(places.documents).filePath(u"Lanterra"_s);
        filledFromShare = true;
    }
    path = QDir(path).absolutePath();
}

bool ProgramFolder::Prepare(const VersionOf &versionOf) const {
    if (!filledFromShare)
        return true;
    bool complete = true;
    const QDir share(places.share);
    QDirIterator files(share.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = share.relativeFilePath(files.next());
        const QString own = QDir(path).filePath(name);
        if (!FileExists(own) || IsRenewed(name, versionOf))
            complete = CopyWithTime(share.filePath(name), own) && complete;
    }
    return complete;
}

bool ProgramFolder::IsRenewed(const QString &name, const VersionOf &versionOf) const {
    const QString installed = QDir(places.share).filePath(name);
    const QString own = QDir(path).filePath(name);
    // A damaged master has version 0, so a sound one takes its place however old the file is.
    if (name == masterName)
        return versionOf(installed) > versionOf(own);
    const bool ofProgram = name == engineName || name == helpFile ||
                           std::any_of(ownFolders.begin(), ownFolders.end(),
                                       [&name](QLatin1StringView folder) { return name.startsWith(folder); });
    return ofProgram && QFileInfo(installed).lastModified() > QFileInfo(own).lastModified();
}

} // namespace lanterra
