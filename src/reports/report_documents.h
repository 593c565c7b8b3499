#pragma once

#include "project/project_path.h"
#include "settings/document_viewer.h"

namespace lanterra {

/// Opens what the runs of the open project have left on the disk. None of the files need exist. All of these
/// yield while a viewer is started.
class ReportDocuments {
public:
    ReportDocuments(const ProjectPath &projectPath, DocumentViewer &documentViewer)
        : path(projectPath), viewer(documentViewer) {}

    /// "Report": the HTML report, but not while a run is under way.
    void Command18_Click(bool runActive);
    /// "HTML Report": the same, but only if a project is open.
    void mnuHtml_Click();
    /// "Log File": a file that only others write.
    void mnuViewLogfile_Click();

private:
    void Open(const QString &fileName);

    const ProjectPath &path;
    DocumentViewer &viewer;
};

} // namespace lanterra
