#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <array>
#include <chrono>
#include <optional>
#include <vector>

namespace lanterra {

/// A list of site names with room for 501. A write behind the end is dropped and a read gives nothing, while
/// the count that goes with the list rises on.
class NameList {
public:
    static constexpr int capacity = 501;

    static bool Holds(int index) { return index >= 0 && index < capacity; }
    QString At(int index) const { return Holds(index) ? names[static_cast<std::size_t>(index)] : QString(); }
    void Store(int index, const QString &name);
    void Clear() { names.fill(QString()); }

    /// Whether any entry holds the text anywhere in it, ignoring case.
    bool AnyHolds(const QString &text) const;

private:
    std::array<QString, capacity> names;
};

enum class Verdict { NotSelected, None, Successful, Failed };

/// How one site fared in the last run. Beside the lists, so that a person can be told why.
struct SiteOutcome {
    Verdict verdict = Verdict::NotSelected;
    std::optional<int> status; ///< number of the answer's status line, if one came
    qint64 bytes = 0;          ///< of body received
    QString reason;            ///< why it failed or was passed by, one sentence without a full stop
    QString statusText = {};   ///< the number with the words behind it ("404 Not Found"), if it came
};

/// What a run leaves behind: three lists of names with their counts, and where its pages and report lie. Kept
/// until the next run overwrites it; an entry beyond a count can still hold a name of an earlier run.
class RunResult : public QObject {
    Q_OBJECT

public:
    /// Empties the names of successes and failures, which a run does before its checks: old failures would
    /// swallow new ones. The counts stay, and so do the names of sites that were not selected until they are
    /// written anew.
    void ClearNames();

    /// Readies the counts and indexes for a run over `listCount` sites, all of them unjudged.
    void Begin(int listCount);

    /// Notes that the run is over: nothing changes until the next one.
    void End();
    bool UnderWay() const { return underWay; }

    void AddSuccess(const QString &name, int listIndex);
    void AddFailure(const QString &name, int listIndex);
    void BeginNotSelected() { notSelectedCount = 0; }
    void AddNotSelected(const QString &name);

    int SuccessfulCount() const { return successfulCount; }
    int FailedCount() const { return failedCount; }
    int NotSelectedCount() const { return notSelectedCount; }

    NameList SuccessfulNames;  ///< in the order of the verdicts
    NameList FailedNames;      ///< in the order of the verdicts
    NameList NotSelectedNames; ///< in List1 order

    std::vector<int> SuccessfulIndex; ///< List1 position of each entry of SuccessfulNames
    std::vector<int> FailedIndex;     ///< List1 position of each entry of FailedNames

    std::vector<SiteOutcome> outcomes; ///< by List1 position
    QStringList notStored; ///< what could not be written to the disk, a sentence with the reason each

    /// The time from the first dispatch of the run to its last verdict so far, by a clock that only grows. 0
    /// before the first verdict.
    std::chrono::milliseconds Duration() const { return lastVerdict - firstDispatch; }
    /// The moment of the last verdict so far by that clock, 0 before the first.
    std::chrono::milliseconds LastVerdict() const { return lastVerdict; }
    void NoteDispatch(std::chrono::milliseconds moment);
    /// Notes how the site at a List1 position fared. An index outside the run is passed over.
    void Judge(int listIndex, const SiteOutcome &outcome, std::chrono::milliseconds moment);
    /// Notes that the site at a List1 position takes part in the run.
    void Await(int listIndex);
    /// Notes why a site that takes part got no verdict; the first reason stays.
    void Explain(int listIndex, const QString &reason);

    QString reportFolder; ///< with a separator at the end
    QString reportFile;
    int elapsedSeconds = 0; ///< negative for a run across midnight

signals:
    void Begun();
    /// The site at a List1 position takes part, was judged or explained.
    void OutcomeChanged(int listIndex);
    void Ended();

private:
    SiteOutcome *Outcome(int listIndex);

    bool underWay = false;
    int successfulCount = 0;
    int failedCount = 0;
    int notSelectedCount = 0;
    bool dispatched = false;
    std::chrono::milliseconds firstDispatch{0};
    std::chrono::milliseconds lastVerdict{0};
};

} // namespace lanterra
