#include "project/project_path.h"

#include "support/file_names.h"

#include <QDir>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString ending = u".rts"_s;
constexpr qsizetype endingLength = 4;

QString WithSeparator(const QString &folder) {
    return folder.endsWith(QDir::separator()) ? folder : folder + QDir::separator();
}

} // namespace

ProjectPath::ProjectPath(const QString &programFolder)
    : appPath(WithSeparator(QDir(programFolder).absolutePath())) {
    SplitProjectPath();
}

QString ProjectPath::ProjectsFolder() const { return WithSeparator(appPath + u"Projects"_s); }

void ProjectPath::CreateProjectsFolder() const { QDir().mkpath(ProjectsFolder()); }

QString ProjectPath::OwnFolder() const { return WithSeparator(ProjectFolder + ProjectName); }

QString ProjectPath::ReportFolder() const { return WithSeparator(OwnFolder() + u"report"_s); }

QString ProjectPath::ReportFolder(int slot) const {
    return WithSeparator(ReportFolder() + u"URL%1"_s.arg(slot));
}

QString ProjectPath::MasterFile() const { return appPath + u"ng.dll"_s; }

void ProjectPath::SplitProjectPath() {
    if (Base.isEmpty()) {
        ProjectFolder = ProjectsFolder();
        ProjectName = u"Project1"_s;
        return;
    }
    Base = QDir::toNativeSeparators(QDir().absoluteFilePath(Base));
    const qsizetype nameStart = Base.lastIndexOf(QDir::separator()) + 1;
    // The last four characters are taken for the ending, whatever they are.
    const QString typedName =
        Base.mid(nameStart, std::max<qsizetype>(Base.size() - nameStart - endingLength, 0));
    ProjectFolder = Base.left(nameStart);
    ProjectName = RemoveChars(typedName);
    if (!CanBeFileName(ProjectName) || ProjectName.trimmed().isEmpty())
        ProjectName = typedName.isEmpty() ? Base.mid(nameStart) : typedName;

    const QString cleaned = ProjectFolder + ProjectName + ending;
    const bool keepsName = FileExists(Base) && Base.endsWith(ending, Qt::CaseInsensitive);
    if (!keepsName && !FileExists(cleaned))
        Base = cleaned;
}

void ProjectPath::ComputeStatsFilePath() {
    // The first ".rts" of the whole path counts, so one in the name of a folder is the one that changes.
    const qsizetype dot = Base.indexOf(ending, 0, Qt::CaseInsensitive);
    if (dot < 0)
        return;
    StatsFilePath = Base;
    StatsFilePath.replace(dot + 1, endingLength - 1, u"sst"_s);
}

} // namespace lanterra
