#pragma once

#include "project/project.h"
#include "reports/run_result.h"
#include "settings/document_viewer.h"

namespace lanterra {

/// A page in the project's own folder that is written and shown.
class ProjectPage {
public:
    /// All must outlive this.
    ProjectPage(const QString &fileName, Project &openProject, const RunResult &runResult,
                DocumentViewer &documentViewer);

    /// Finds the page's place anew and creates the project's folder and that of its reports where they are
    /// missing.
    void Prepare();

    /// Where Prepare has found it to lie.
    const QString &Path() const { return path; }

    /// Shows the page. Yields.
    void Open() { viewer.OpenDocument(path); }

private:
    QString name;
    Project &project;
    const RunResult &result;
    DocumentViewer &viewer;
    QString path;
};

} // namespace lanterra
