#pragma once

#include "ports/clock.h"
#include "ports/event_queue.h"
#include "project/project.h"
#include "reports/run_result.h"

#include <QHash>

namespace lanterra {

class WholeFile;

/// Writes the HTML report of a run and the pages of the sites that were not selected.
///
/// The page stands in the resource submission_report.txt, one record a line:
///   - each record goes out with CR LF behind it; one that ends in the two characters \n has a CR LF of its
///     own before that, so an empty line follows it;
///   - {NAME} is replaced by a value of the run, unescaped;
///   - a line "@List text" is written once for each name of that list, with {HREF} and {SITE} of the name.
/// Its odd markup is kept byte for byte, as reports have always been written: doubled end tags, colours of
/// five digits, missing blanks.
class SubmissionReport {
public:
    /// All must outlive this.
    SubmissionReport(Project &openProject, const RunResult &runResult, const Clock &systemClock,
                     EventQueue &eventQueue);

    /// Writes pages and report, record by record. Yields after each row of a list. False if the report could
    /// not be written; the old one is then still there.
    bool WriteSubmissionReport();

private:
    using Values = QHash<QString, QString>;

    void WriteNotSelectedPages() const;
    Values HeadValues() const;
    bool WriteRecord(WholeFile &file, const QString &record, const Values &values) const;
    bool WriteRows(WholeFile &file, const QString &loop);

    Project &project;
    const RunResult &result;
    const Clock &clock;
    EventQueue &queue;
};

} // namespace lanterra
