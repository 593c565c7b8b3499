#pragma once

#include "cli/project_session.h"
#include "cli/run_progress.h"

#include <QJsonArray>
#include <memory>

namespace lanterra {

/// Follows the job over all URLs of a project: the progress of each run on a terminal, then its outcome.
class UrlJobOutput final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive this.
    UrlJobOutput(const CommandCall &commandCall, ProjectSession &projectSession);

    /// At the end of the job: prints where the page of all reports lies, or all as JSON. How the job ended,
    /// unless it was cancelled: without any run it was refused.
    Outcome Finish();

private:
    void Begin(int slot);
    void End(int slot);
    void Refuse(int slot);
    QString Url(int slot) const;
    Outcome RefusalOfJob() const;

    const CommandCall &call;
    ProjectSession &session;
    Program &program;
    const bool asJson;
    std::unique_ptr<RunProgress> progress; ///< of the run under way
    int boxesBefore = 0;                   ///< shown when the run began
    QJsonArray urls;                       ///< an object for each URL so far
    QStringList troubles;                  ///< what could not be stored
    bool refused = false;                  ///< a check has stopped a run
};

} // namespace lanterra
