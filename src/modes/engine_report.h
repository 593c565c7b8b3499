#pragma once

#include "modes/top_engines_form.h"
#include "project/project.h"
#include "reports/report_templates.h"

namespace lanterra {

/// Writes the pages of the top engines mode: the report of one URL and the index of a job over several. Both
/// are the templates of ReportTemplates with each placeholder replaced wherever it stands, in whatever case
/// and unescaped. Text that is no placeholder passes unchanged.
class EngineReport {
public:
    struct Parts {
        Project &project;
        MainFrame &frame;
        TopEnginesForm &form;
        const ReportTemplates &templates;
        EventQueue &queue;
        const Clock &clock;
    };

    /// All parts must outlive this.
    explicit EngineReport(const Parts &theParts) : parts(theParts) {}

    /// Takes the results of the spider's tasks into the table, and writes the report of the current URL: a
    /// row for each selected engine, in the order of the table. One that was selected behind the start has
    /// none. `urlStart` is the whole second of the day at which the URL was begun. False, with the old file
    /// left, if it could not be written.
    bool WriteEngineReport(const QString &reportFile, int urlStart);

    /// Writes the index: a link for each slot from 0 to MultiUrlUpper, `reportFiles` in their order, also for
    /// one that the job passed over. Yields after each. False as above.
    bool WriteEngineIndex(const QString &indexFile, const QStringList &reportFiles, int jobStart);

private:
    void CollectEngineResults();
    QString Row(const EngineRow &engine) const;
    QString ExpandReportPlaceholders(const QString &page, int start) const;

    Parts parts;
};

} // namespace lanterra
