#pragma once

#include "project/main_frame.h"
#include "project/project.h"
#include "reports/run_result.h"
#include "settings/document_viewer.h"

namespace lanterra {

/// A page in the project's own folder that is written and shown.
class ProjectPage {
public:
    /// All must outlive this.
    ProjectPage(const QString &fileName, Project &openProject, MainFrame &mainFrame,
                const RunResult &runResult, DocumentViewer &documentViewer);

    /// Replaces the page and shows it; creates the project's folder and that of its reports where they are
    /// missing. If the page can't be written, the frame's notice tells so, and the old one is shown: false.
    /// Yields.
    bool Publish(const QString &html);

    /// Where it was written last.
    const QString &Path() const { return path; }

private:
    void Prepare();

    QString name;
    Project &project;
    MainFrame &frame;
    const RunResult &result;
    DocumentViewer &viewer;
    QString path;
};

} // namespace lanterra
