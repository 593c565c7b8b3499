#include "cli/run_summary.h"

#include "cli/text_table.h"
#include "reports/site_pages.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QString VerdictWord(Verdict verdict) {
    switch (verdict) {
    case Verdict::Successful:
        return u"successful"_s;
    case Verdict::Failed:
        return u"failed"_s;
    case Verdict::None:
        return u"none"_s;
    case Verdict::NotSelected:
        break;
    }
    return u"not selected"_s;
}

QJsonObject SiteAsJson(const QString &name, const SiteOutcome &outcome, const QString &reportFolder) {
    const bool hasPage = outcome.verdict != Verdict::NotSelected && CanHavePage(name);
    return {
        {u"name"_s, name},
        {u"verdict"_s, VerdictWord(outcome.verdict)},
        {u"status"_s, outcome.status ? QJsonValue(*outcome.status) : QJsonValue(QJsonValue::Null)},
        {u"bytes"_s, outcome.bytes},
        {u"page"_s, hasPage ? QJsonValue(SitePagePath(reportFolder, name)) : QJsonValue(QJsonValue::Null)},
        {u"reason"_s, outcome.reason}};
}

QJsonArray SitesAsJson(const Program &program) {
    QJsonArray sites;
    for (std::size_t row = 0; row < program.result.outcomes.size(); ++row)
        sites.append(SiteAsJson(program.project.lists.SiteName(static_cast<int>(row)),
                                program.result.outcomes[row], program.result.reportFolder));
    return sites;
}

} // namespace

QStringList RunSummaryLines(const Program &program) {
    const RunResult &result = program.result;
    const int covered = result.SuccessfulCount() + result.FailedCount();
    QList<QStringList> rows;
    for (std::size_t row = 0; row < result.outcomes.size(); ++row) {
        const SiteOutcome &outcome = result.outcomes[row];
        if (outcome.verdict == Verdict::Failed || outcome.verdict == Verdict::None)
            rows << QStringList{outcome.verdict == Verdict::Failed ? u"failed"_s : u"no verdict"_s,
                                program.project.lists.SiteName(static_cast<int>(row)), outcome.reason};
    }
    return AlignedLines(rows) +
           QStringList{
               u"%1 of %2 sites covered: %3 successful, %4 failed; %5 not selected; %6 s"_s.arg(covered)
                   .arg(program.project.lists.List1.SelCount())
                   .arg(result.SuccessfulCount())
                   .arg(result.FailedCount())
                   .arg(result.NotSelectedCount())
                   .arg(result.elapsedSeconds),
               u"Report: "_s + result.reportFile};
}

QJsonDocument RunSummaryJson(const Program &program) {
    const RunResult &result = program.result;
    return QJsonDocument(QJsonObject{{u"total"_s, program.project.lists.List1.SelCount()},
                                     {u"covered"_s, result.SuccessfulCount() + result.FailedCount()},
                                     {u"successful"_s, result.SuccessfulCount()},
                                     {u"failed"_s, result.FailedCount()},
                                     {u"notSelected"_s, result.NotSelectedCount()},
                                     {u"seconds"_s, result.elapsedSeconds},
                                     {u"milliseconds"_s, static_cast<qint64>(result.Duration().count())},
                                     {u"report"_s, result.reportFile},
                                     {u"sites"_s, SitesAsJson(program)}});
}

} // namespace lanterra
