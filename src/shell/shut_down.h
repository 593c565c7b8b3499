#pragma once

#include "ports/dialogs.h"
#include "project/project_files.h"
#include "settings/options.h"
#include "shell/start_up.h"

namespace lanterra {

/// Takes the program down, in one fixed order: saves the project if the user wants that, closes it, compacts
/// it. docs/start-and-stop.md tells the order. It runs at the bottom of the stack, when everything that
/// waited has returned.
class ShutDown {
public:
    struct Parts {
        const StartUp &startUp;
        Project &project;
        MainFrame &frame;
        ProjectFiles &files;
        Options &options;
        Dialogs &dialogs;
        QString scratchFile; ///< deleted
    };

    /// All parts must outlive this.
    explicit ShutDown(const Parts &theParts) : parts(theParts) {}

    /// Shuts the program down; a second call does nothing. Of a start that was cut short nothing is stored:
    /// the options were not read yet, and nobody has typed anything. Nor is anything after an import, which
    /// has stored all there is. A step that fails is told in a box, and the others follow; a project that
    /// can't be saved may be saved under another name. Asks whether to save a project without a file. Yields.
    void Run();

private:
    void StoreAll();
    bool SaveOnExit();
    bool WantsOtherName(const QString &failure);
    void StoreSameDescription();
    void Compact();

    Parts parts;
    bool begun = false;
};

} // namespace lanterra
