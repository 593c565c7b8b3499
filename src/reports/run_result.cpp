#include "reports/run_result.h"

#include <algorithm>

namespace lanterra {

void NameList::Store(int index, const QString &name) {
    if (Holds(index))
        names[static_cast<std::size_t>(index)] = name;
}

bool NameList::AnyHolds(const QString &text) const {
    return std::any_of(names.begin(), names.end(),
                       [&](const QString &name) { return name.contains(text, Qt::CaseInsensitive); });
}

void RunResult::ClearNames() {
    SuccessfulNames.Clear();
    FailedNames.Clear();
}

void RunResult::Begin(int listCount) {
    SuccessfulIndex.clear();
    FailedIndex.clear();
    successfulCount = 0;
    failedCount = 0;
    dispatched = false;
    firstDispatch = lastVerdict = std::chrono::milliseconds{0};
    notStored.clear();
    outcomes.assign(static_cast<std::size_t>(listCount), {});
    underWay = true;
    emit Begun();
}

void RunResult::End() {
    underWay = false;
    emit Ended();
}

SiteOutcome *RunResult::Outcome(int listIndex) {
    const bool inside = listIndex >= 0 && listIndex < static_cast<int>(outcomes.size());
    return inside ? &outcomes[static_cast<std::size_t>(listIndex)] : nullptr;
}

void RunResult::Await(int listIndex) {
    if (SiteOutcome *outcome = Outcome(listIndex)) {
        outcome->verdict = Verdict::None;
        emit OutcomeChanged(listIndex);
    }
}

void RunResult::NoteDispatch(std::chrono::milliseconds moment) {
    if (dispatched)
        return;
    dispatched = true;
    firstDispatch = lastVerdict = moment;
}

void RunResult::Judge(int listIndex, const SiteOutcome &outcome, std::chrono::milliseconds moment) {
    lastVerdict = moment;
    if (SiteOutcome *site = Outcome(listIndex)) {
        *site = outcome;
        emit OutcomeChanged(listIndex);
    }
}

void RunResult::Explain(int listIndex, const QString &reason) {
    SiteOutcome *outcome = Outcome(listIndex);
    if (!outcome || !outcome->reason.isEmpty())
        return;
    outcome->reason = reason;
    emit OutcomeChanged(listIndex);
}

void RunResult::AddSuccess(const QString &name, int listIndex) {
    SuccessfulNames.Store(successfulCount, name);
    SuccessfulIndex.push_back(listIndex);
    ++successfulCount;
}

void RunResult::AddFailure(const QString &name, int listIndex) {
    FailedNames.Store(failedCount, name);
    FailedIndex.push_back(listIndex);
    ++failedCount;
}

void RunResult::AddNotSelected(const QString &name) {
    NotSelectedNames.Store(notSelectedCount, name);
    ++notSelectedCount;
}

} // namespace lanterra
