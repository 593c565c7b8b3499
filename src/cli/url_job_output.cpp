#include "cli/url_job_output.h"

#include "cli/run_output.h"
#include "cli/run_summary.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lanterra {

UrlJobOutput::UrlJobOutput(const CommandCall &commandCall, ProjectSession &projectSession)
    : call(commandCall), session(projectSession), program(session.program),
      asJson(call.options.isSet(u"json"_s)) {
    connect(&program.multiUrlJob, &MultiUrlJob::UrlStarted, this, &UrlJobOutput::Begin);
    connect(&program.multiUrlJob, &MultiUrlJob::UrlEnded, this, &UrlJobOutput::End);
}

void UrlJobOutput::Begin(int slot) {
    boxesBefore = session.BoxCount();
    if (!asJson)
        call.console.Print(u"==> %1 <=="_s.arg(Url(slot)));
    progress =
        std::make_unique<RunProgress>(program.submitForm, program.result, program.runEstimate, call.console);
}

void UrlJobOutput::End(int slot) {
    progress.reset();
    if (session.BoxCount() > boxesBefore) {
        Refuse(slot);
        return;
    }
    troubles << program.result.notStored;
    QJsonObject outcome = RunSummaryJson(program).object();
    outcome.insert(u"url"_s, Url(slot));
    urls.append(outcome);
    if (!asJson)
        PrintRun(call, program);
}

QString UrlJobOutput::Url(int slot) const {
    return program.project.record.multiUrlTable.Cell(slot, MultiUrlTable::urlColumn);
}

void UrlJobOutput::Refuse(int slot) {
    refused = true;
    const QString reason = ChecksRefusal(program.project.record).sentence;
    urls.append(QJsonObject{{u"url"_s, Url(slot)}, {u"refused"_s, reason}});
    call.console.Tell(reason);
}

Outcome UrlJobOutput::Finish() {
    if (urls.isEmpty() && session.HasShownBox())
        return RefusalOfJob();
    const QString index = program.result.reportFile;
    if (asJson)
        call.console.PrintJson(QJsonDocument(QJsonObject{{u"urls"_s, urls}, {u"report"_s, index}}));
    else
        call.console.Print(u"All reports: "_s + index);
    if (!program.multiUrlJob.IndexWritten())
        troubles << u"The page of all reports could not be written: "_s + index;
    for (const QString &trouble : troubles)
        call.console.Tell(trouble);
    if (refused)
        return {ExitCode::Refused};
    return {troubles.isEmpty() ? ExitCode::Done : ExitCode::Failed};
}

Outcome UrlJobOutput::RefusalOfJob() const {
    return Outcome::Refused(program.project.record.MultiUrlMode()
                                ? u"Let all of them share the texts of the first one with: lanterra-cli set "
                                  "FILE chkMultiSameDesc=1"_s
                                : u"Set them with: lanterra-cli urls"_s);
}

} // namespace lanterra
