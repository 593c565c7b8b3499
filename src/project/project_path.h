#pragma once

#include <QString>

namespace lanterra {

/// The path of the open project and what is derived from it.
class ProjectPath {
public:
    /// `programFolder` is the folder of the master database, with or without a separator at its end.
    explicit ProjectPath(const QString &programFolder);

    /// The program's folder and its folder for projects, each with a separator at the end.
    const QString &AppPath() const { return appPath; }
    QString ProjectsFolder() const;
    /// Creates that folder; one that exists is fine.
    void CreateProjectsFolder() const;

    // Below the folder and name that SplitProjectPath has derived, each with a separator at the end.
    QString OwnFolder() const;
    QString ReportFolder() const;         ///< of a run
    QString ReportFolder(int slot) const; ///< of one URL of several

    /// Path of the master database.
    QString MasterFile() const;

    /// Derives folder and name from Base, and gives Base the cleaned name with the ending ".rts". A relative
    /// Base becomes absolute. A project file that exists keeps its name, and no Base becomes the name of a
    /// file that exists, so neither a project is lost sight of nor another one overwritten. An empty Base
    /// stays empty and stands for "Project1" in the folder for projects.
    void SplitProjectPath();

    /// Derives StatsFilePath from a Base that holds ".rts", in either case; otherwise the old value stays.
    void ComputeStatsFilePath();

    QString Base;          ///< full path of the open project, empty for none
    QString ProjectFolder; ///< with a separator at the end
    QString ProjectName;   ///< without folder and ending
    QString StatsFilePath; ///< kept for file managers that pair the two; nothing reads it

private:
    QString appPath;
};

} // namespace lanterra
