#pragma once

#include "controls/check_box.h"
#include "controls/list_box.h"
#include "ports/dialogs.h"
#include "project/project_files.h"

namespace lanterra {

/// frmProjectDialog: the choice between a new and an existing project at the start of the program.
class ProjectDialog : public Control {
    Q_OBJECT

public:
    /// `loadLastProject` is the option box of the same name in the settings form. All must outlive the form,
    /// which comes up hidden and empty.
    ProjectDialog(ProjectPath &projectPath, ProjectFiles &projectFiles, RecentFile &recentFile,
                  CheckBox &loadLastProject, Dialogs &fileDialogs);

    /// Shows the form with the list of recent files. A first start offers to create a project, a later one to
    /// open one.
    void Load();

    /// "Continue": Base takes the chosen file, the one that "More Files..." leads to, or none for a new
    /// project, and the form hides. Only a cancelled file dialog leaves it up. Yields while that is up.
    void cmdOK_Click();
    /// Opens the current file at once; a box tells if it is gone, and the form stays. Yields.
    void List1_DblClick();
    /// Closing the form by other means leaves Base as it is.
    void Close() { SetVisible(false); }

    CheckBox Option1; ///< "Create a new project"
    CheckBox Option2; ///< "Open an existing project"; one of the two is checked
    ListBox List1{ListBox::Marks::None};
    CheckBox LoadLastProject;

private:
    void OpenMoreFiles();

    ProjectPath &path;
    ProjectFiles &files;
    RecentFile &recent;
    CheckBox &settingsBox;
    Dialogs &dialogs;
};

} // namespace lanterra
