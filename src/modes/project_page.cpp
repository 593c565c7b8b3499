#include "modes/project_page.h"

#include "support/text_file.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace lanterra {

ProjectPage::ProjectPage(const QString &fileName, Project &openProject, MainFrame &mainFrame,
                         const RunResult &runResult, DocumentViewer &documentViewer)
    : name(fileName), project(openProject), frame(mainFrame), result(runResult), viewer(documentViewer) {}

bool ProjectPage::Publish(const QString &html) {
    Prepare();
    const bool written = WriteFileText(path, html);
    if (!written)
        frame.Notice.SetCaption(u"The page could not be written: "_s + path);
    viewer.OpenDocument(path);
    return written;
}

void ProjectPage::Prepare() {
    project.path.SplitProjectPath();
    QDir().mkpath(project.path.OwnFolder());
    if (!result.reportFolder.isEmpty()) // no SUBMIT was pressed yet
        QDir().mkpath(result.reportFolder);
    path = project.path.OwnFolder() + name;
}

} // namespace lanterra
