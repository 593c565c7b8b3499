#pragma once

#include <QString>
#include <functional>

namespace lanterra {

/// The folder that holds the master database, the engine file, the templates and the projects. It is the
/// first of: the folder given on the command line, the value of LANTERRA_HOME, the executable's folder if the
/// master stands there, and the folder "Lanterra" in the user's documents. Only that last one is filled and
/// renewed from the installed share folder; it is a visible folder because sandboxed browsers read no hidden
/// ones.
class ProgramFolder {
public:
    struct Places {
        QString given;       ///< on the command line, empty for none
        QString environment; ///< LANTERRA_HOME, empty for none
        QString executable;  ///< folder of the executable
        QString documents;   ///< the user's documents
        QString share;       ///< installed files; need not exist

        /// The places of this system and this process.
        static Places OfSystem(const QString &givenFolder);
    };

    /// The Version of a master database, 0 if the file can't be read.
    using VersionOf = std::function<int(const QString &master)>;

    explicit ProgramFolder(const Places &systemPlaces);

    /// Absolute, without a separator at its end.
    const QString &Path() const { return path; }

    /// Fills the user's folder with the installed files that it lacks, and renews the master, the engine
    /// file, the templates and the help: the master if the share folder has one of a greater Version, the
    /// others by their time. False if a file could not be copied; the others are. Does nothing for any other
    /// folder.
    bool Prepare(const VersionOf &versionOf) const;

private:
    bool IsRenewed(const QString &name, const VersionOf &versionOf) const;

    Places places;
    QString path;
    bool filledFromShare = false;
};

} // namespace lanterra
