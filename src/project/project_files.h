#pragma once

#include "controls/label.h"
#include "ports/dialogs.h"
#include "ports/event_queue.h"
#include "project/main_frame.h"
#include "project/project.h"
#include "project/project_store.h"
#include "project/recent_file.h"
#include "project/site_reader.h"
#include "project/status_form.h"
#include "settings/window_settings.h"

#include <array>

namespace lanterra {

/// The entries of the File menu: creates, opens and saves project files.
class ProjectFiles : public QObject {
    Q_OBJECT

public:
    /// All must outlive this.
    struct Parts {
        Project &project;
        MainFrame &frame;
        StatusForm &status;
        RecentFile &recent;
        WindowSettings &windowSettings;
        Dialogs &dialogs;
        EventQueue &queue;
    };

    explicit ProjectFiles(const Parts &theParts);

    /// What runs when a project is older than the master; none, and such a project is opened as it is.
    void SetImport(SiteDatabaseImport *siteDatabaseImport) { import = siteDatabaseImport; }

    // All of these yield. While a project is being loaded or saved they do nothing, except Save, which the
    // run needs. A save that fails is told by the frame's notice alone.
    void mnuFileNew_Click();
    void mnuFileOpen_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    /// `item` is 1 to 5.
    void mnuFileMRU_Click(int item);

    /// Opens another file as the user's choice: forgets the several URLs of the old project, loads the new
    /// one.
    void OpenProject(const QString &file);

    /// Makes a file under this path out of the master, or replaces it, and binds it. Its lists are empty
    /// until the next LoadProject. Not stored if the master could not be copied.
    StoreResult MakeFromMaster(const QString &file);

    /// Makes a new project under this path, empty but for the values of a new one, and loads it. Not stored
    /// if the master could not be copied. Yields.
    StoreResult CreateProject(const QString &file);

    /// Loads the file `Base` into controls and lists; nothing without one. If that leads to an import of a
    /// newer master, it ends the program. Yields.
    void LoadProject();

    /// Whether an import has ended the program. Nothing is loaded or saved any more.
    bool Ended() const { return ended; }

    /// Copies the file `source` to Base, if one is given, binds the data objects, and stores the fields and
    /// the selection, both in one step, if the lists hold any site. A file newly made from the master thus
    /// keeps the master's values. What went wrong also stands in the frame's notice. Yields.
    StoreResult SaveProject(const QString &source);

    /// Stores the window's settings and offers to save a project that has no file yet. Yields while it asks.
    void AskSaveProject();

    /// What the dialogs for an existing project start with. Creates the folder for projects.
    FileDialog OpenDialog() const;

    /// The menu entries, disabled while a run, or a job of the top engines, is under way. Save stays.
    Control mnuFileNew, mnuFileOpen, mnuFileSaveAs;
    std::array<Label, RecentFile::limit> mnuFileMRU; ///< the recent files; those without a name are invisible
    void SetRunActive(bool active);
    void SetTopEnginesActive(bool active);

signals:
    /// An import has closed and stored everything: the process is to end at once, without the steps of a
    /// usual end. Raised once, inside LoadProject.
    void ProgramEnds();

private:
    bool Accepts(const Control &entry) const;
    void ShowRecentFiles(const QStringList &names);
    void LockEntries();
    bool SaveAs();
    void ClearForNewProject();
    void ShowLoadedUrls();

    Parts parts;
    SiteDatabaseImport *import = nullptr;
    bool busy = false; ///< a project is being loaded or saved
    bool ended = false;
    bool runActive = false;
    bool topEnginesActive = false;
};

} // namespace lanterra
