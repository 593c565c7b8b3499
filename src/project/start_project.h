#pragma once

#include "ports/dialogs.h"
#include "ports/forms.h"
#include "project/project_files.h"

namespace lanterra {

/// Finds a project for the start of the program, and doesn't let go before there is one.
class StartProject {
public:
    /// All must outlive this.
    StartProject(Project &openProject, ProjectFiles &projectFiles, Forms &formOpener, Dialogs &inputDialogs,
                 const EventQueue &eventQueue)
        : project(openProject), files(projectFiles), forms(formOpener), dialogs(inputDialogs),
          queue(eventQueue) {}

    /// Takes the file of the command line if it exists, else what frmProjectDialog chooses, and loads it;
    /// without either asks for the name of a new project until one is given, and creates it from the master.
    /// Its lists are empty until the next load. The end of the program ends the asking. Yields.
    void ChooseStartProject(const QString &commandLine);

    /// Creates a project of the typed name in the folder for projects; asks before an existing file is
    /// replaced, No as default. False for a name of which nothing is left, for No, and if the file could not
    /// be made, which a box tells. Yields.
    bool CreateProject(const QString &typedName);

private:
    Project &project;
    ProjectFiles &files;
    Forms &forms;
    Dialogs &dialogs;
    const EventQueue &queue;
};

} // namespace lanterra
