#include "reports/report_documents.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace lanterra {

void ReportDocuments::Command18_Click(bool runActive) {
    if (!runActive)
        Open(u"report.htm"_s);
}

void ReportDocuments::mnuHtml_Click() {
    if (!path.Base.isEmpty())
        Open(u"report.htm"_s);
}

void ReportDocuments::mnuViewLogfile_Click() { Open(u"logfile.txt"_s); }

void ReportDocuments::Open(const QString &fileName) {
    viewer.OpenDocument(path.ProjectFolder + path.ProjectName + QDir::separator() + fileName);
}

} // namespace lanterra
