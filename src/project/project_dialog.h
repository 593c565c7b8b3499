#pragma once

#include "controls/check_box.h"
#include "controls/list_box.h"
#include "ports/dialogs.h"
#include "project/project_files.h"

namespace lanterra {

/// frmProjectDialog: the choice between a new and an existing project at the start of the program.
class ProjectDialog : public QObject {
    Q_OBJECT

public:
    /// `loadLastProject` is the option box of the same name in the settings form.
    ProjectDialog(ProjectPath &projectPath, ProjectFiles &projectFiles, RecentFile &recentFile,
                  CheckBox &loadLastProject, Dialogs &fileDialogs);

    /// Fills the list from the recent files. A first start offers to create a project, a later one to open
    /// one.
    void Load();

    void cmdOK_Click();
    void List1_DblClick();
    /// Closing the form by other means leaves Base as it is.
    void Close() { SetVisible(false); }

    bool Visible() const { return visible; }

    CheckBox Option1; ///< "Create a new project"
    CheckBox Option2; ///< "Open an existing project"; one of the two is checked
    ListBox List1{ListBox::Marks::None};
    CheckBox LoadLastProject;

signals:
    void VisibleChanged(bool visible);

private:
    void SetVisible(bool show);
    void OpenMoreFiles();

    ProjectPath &path;
    ProjectFiles &files;
    RecentFile &recent;
    CheckBox &settingsBox;
    Dialogs &dialogs;
    bool visible = false;
};

} // namespace lanterra
