#pragma once

#include "platform/ini_settings_store.h"
#include "tests/fakes/fake_doors.h"

#include <QDir>
#include <functional>
#include <vector>

namespace lanterra {

/// A whole program whose files and settings are real and in one folder, so that disk faults can meet it.
class FaultedProgram : public FakeDoors {
public:
    explicit FaultedProgram(const QString &homeFolder) : home(homeFolder) {}

    QString Path(const QString &name) const { return home.filePath(name); }
    QString InProjects(const QString &name) const { return Path(QStringLiteral("Projects/") + name); }

    /// Opens the project "Site.rts", and types and marks what its file doesn't hold.
    void OpenAndEdit();

    /// What the person was told of a failure since the last call; empty for nothing.
    QString Told();

    QDir home;
    IniSettingsStore iniFile{home.filePath(QStringLiteral("config/Lanterra.ini"))};
    Program program{With(queue, clock, iniFile, [] { return std::make_unique<FakeHttpClient>(); }),
                    home.path()};
};

/// Makes a folder with a master, the projects "Site.rts" and "Other.rts" and a settings file. False if that
/// failed.
bool MakePristineFolder(const QString &folder);

/// Something a person does that writes files.
struct Operation {
    QString name;
    QString mainFile; ///< in the program's folder: holds the new state once nothing was told
    std::function<void(FaultedProgram &)> prepare;
    std::function<void(FaultedProgram &)> perform;
};

const std::vector<Operation> &Operations();

/// The content of a file of the program, for comparison: all tables and rows of a project or master, the
/// bytes of any other, or why it can't be read. Opening a project plays back its journal.
QString StateOf(const QString &path);

} // namespace lanterra
