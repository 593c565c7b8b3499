#include "submission/run_ending.h"

#include "support/numbers.h"

using namespace Qt::StringLiterals;

namespace lanterra {

void RunEnding::Record(float startTime, const QString &reasonWithoutVerdict) {
    CompleteNotSelected();
    ExplainMissingVerdicts(reasonWithoutVerdict);
    parts.result.elapsedSeconds = RoundHalfEven(parts.clock.Timer() - startTime);
    Store();
    TellNotStored();
    if (parts.project.record.Check3.Checked() && !parts.queue.Closing())
        parts.viewer.OpenDocument(parts.result.reportFile);
}

void RunEnding::CompleteNotSelected() {
    const SiteLists &lists = parts.project.lists;
    parts.result.BeginNotSelected();
    for (int i = 0; i < lists.List1.ListCount(); ++i) {
        if (!lists.List1.Selected(i))
            parts.result.AddNotSelected(lists.SiteName(i));
        parts.queue.Yield();
    }
}

void RunEnding::ExplainMissingVerdicts(const QString &reason) {
    for (int i = 0; i < static_cast<int>(parts.result.outcomes.size()); ++i) {
        if (parts.result.outcomes[static_cast<std::size_t>(i)].verdict == Verdict::None)
            parts.result.Explain(i, reason);
    }
}

void RunEnding::Store() {
    RunResult &result = parts.result;
    if (!parts.report.WriteSubmissionReport())
        result.notStored << u"The report could not be written: "_s + result.reportFile;
    if (parts.frmSettings.CreateStatistic.Checked() && !parts.statistics.AppendSessionRow(result))
        result.notStored << u"The statistics could not be stored: "_s +
                                parts.project.database.Data3.Failure();
}

// In the notice, since a box would hold up a job. The save of a later run in it empties the notice, so what
// all of its runs had to tell is told again.
void RunEnding::TellNotStored() {
    notStored += parts.result.notStored;
    notStored.removeDuplicates();
    if (!notStored.isEmpty())
        parts.frame.Notice.SetCaption(notStored.join("; "_L1));
}

} // namespace lanterra
