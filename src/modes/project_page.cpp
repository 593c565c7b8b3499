#include "modes/project_page.h"

#include <QDir>

namespace lanterra {

ProjectPage::ProjectPage(const QString &fileName, Project &openProject, const RunResult &runResult,
                         DocumentViewer &documentViewer)
    : name(fileName), project(openProject), result(runResult), viewer(documentViewer) {}

void ProjectPage::Prepare() {
    project.path.SplitProjectPath();
    const QString folder = project.path.ProjectFolder + project.path.ProjectName;
    QDir().mkpath(folder);
    if (!result.reportFolder.isEmpty()) // no SUBMIT was pressed yet
        QDir().mkpath(result.reportFolder);
    path = folder + QDir::separator() + name;
}

} // namespace lanterra
