#pragma once

#include "controls/control.h"
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

    // All of these yield.
    void mnuFileNew_Click();
    void mnuFileOpen_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    /// `item` is 1 to 5.
    void mnuFileMRU_Click(int item);

    /// Opens another file as the user's choice: forgets the several URLs of the old project, loads the new one.
    void OpenProject(const QString &file);

    /// Makes a new project under this path, empty but for the values of a new one, and loads it; a file that is
    /// there is replaced. Not stored if the master could not be copied. Yields.
    StoreResult CreateProject(const QString &file);

    /// Loads the file `Base` into controls and lists; nothing without one. Yields.
    void LoadProject();

    /// Copies the file `source` to Base, if one is given, binds the data objects, and stores the fields and the
    /// selection if the lists hold any site. A file newly made from the master thus keeps the master's values.
    /// Yields.
    StoreResult SaveProject(const QString &source);

    /// Stores the window's settings and offers to save a project that has no file yet.
    void AskSaveProject();

    /// The path that `OpenFile` starts in, with the dialog's other values. Creates the folder for projects.
    FileDialog OpenDialog() const;

    StatusForm &Status() { return parts.status; }

    /// The menu entries, disabled while a run is under way. Save stays.
    Control mnuFileNew, mnuFileOpen, mnuFileSaveAs;
    std::array<Control, RecentFile::limit> mnuFileMRU;
    void SetRunActive(bool active);

private:
    bool SaveAs();
    void ClearForNewProject();
    void ShowLoadedUrls();

    Parts parts;
    SiteDatabaseImport *import = nullptr;
};

} // namespace lanterra
