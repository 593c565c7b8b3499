#include "tests/behaviours/client_fetch.h"
#include "tests/behaviours/fetch_cases.h"
#include "tools/compare_with_curl/curl_fetch.h"
#include "tools/compare_with_curl/differences.h"

#include <QCoreApplication>
#include <QTextStream>
#include <algorithm>
#include <iterator>

using namespace lanterra;
using namespace Qt::StringLiterals;

// Fetches every behaviour of the practice web with curl and with the program's own client, and prints both
// side by side. Exit codes: 0 if they agree but for the differences that have a reason, 1 if not, 2 for wrong
// use.

namespace {

constexpr int disagree = 1;
constexpr int wrongUse = 2;

constexpr int waitingAtOnce = 20;

// The machine may be busy with other things by turns.
qint64 LongestFor(qint64 curlsMilliseconds) { return 2 * curlsMilliseconds + 500; }

/// Runs the cases one after the other, so that their times can be compared; only those that end at the time
/// limit run at once, before the others. The results are in the order of the cases.
QList<FetchResult> RunInTurn(const QList<FetchCase> &cases, const FetchStarter &start) {
    const auto waits = [](const FetchCase &row) { return row.outcome == u"time limit"; };
    QList<FetchCase> waiting;
    QList<FetchCase> others;
    std::partition_copy(cases.begin(), cases.end(), std::back_inserter(waiting), std::back_inserter(others),
                        waits);
    QList<FetchResult> waited = RunAll(waiting, waitingAtOnce, start);
    QList<FetchResult> ran = RunAll(others, 1, start);
    QList<FetchResult> results;
    for (const FetchCase &row : cases)
        results.append(waits(row) ? waited.takeFirst() : ran.takeFirst());
    return results;
}

/// What differs, in words; empty if nothing does.
QString Difference(const FetchCase &row, const FetchResult &curl, const FetchResult &ours) {
    if ((curl.outcome == u"ok") != (ours.outcome == u"ok"))
        return u"outcome"_s;
    // How much comes of a body without end is a matter of speed.
    const bool comparable = row.disk != u"the part";
    if (comparable && (curl.page.size != ours.page.size || curl.page.digest != ours.page.digest))
        return u"page"_s;
    return ours.milliseconds > LongestFor(curl.milliseconds) ? u"slower"_s : QString();
}

QString Column(const FetchResult &result) {
    return u"%1 %2 B %3 ms"_s.arg(result.outcome, -10).arg(result.page.size, 9).arg(result.milliseconds, 5);
}

/// Prints the table; the number of differences without a reason.
int Compare(const QList<FetchCase> &cases, const QList<FetchResult> &curl, const QList<FetchResult> &ours,
            const Differences &differences) {
    QTextStream out(stdout);
    int agreed = 0;
    int explained = 0;
    for (qsizetype i = 0; i < cases.size(); ++i) {
        const FetchCase &row = cases[i];
        const QString difference = Difference(row, curl[i], ours[i]);
        const QString reason = differences.ReasonFor(row.way, row.page);
        QString verdict = u"same"_s;
        if (difference.isEmpty())
            ++agreed;
        else if (!reason.isEmpty())
            ++explained;
        if (!difference.isEmpty())
            verdict = difference + u": "_s + (reason.isEmpty() ? u"NO REASON KNOWN"_s : reason);
        out << u"%1 | %2 | %3 | %4\n"_s.arg(row.Name(), -40).arg(Column(curl[i]), Column(ours[i]), verdict);
        if (!difference.isEmpty() && reason.isEmpty())
            out << u"    curl: %1\n    ours: %2\n"_s.arg(curl[i].reason, ours[i].reason);
    }
    const int unexplained = static_cast<int>(cases.size()) - agreed - explained;
    out << u"%1 the same, %2 differ on purpose, %3 differ without a reason\n"_s.arg(agreed)
               .arg(explained)
               .arg(unexplained);
    return unexplained;
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        QTextStream(stderr) << u"usage: compare_with_curl DIFFERENCES\n"_s;
        return wrongUse;
    }
    const ParkProcess park;
    if (!park.Stands())
        return disagree;
    const QList<FetchCase> cases = BehaviourCases(park) + GateCases(park);
    const QList<FetchResult> curl = RunInTurn(cases, [&park](const FetchCase &row, const QString &path) {
        return std::make_unique<CurlFetch>(row, path, park.AuthorityPath());
    });
    const QList<FetchResult> ours = RunInTurn(cases, [&park](const FetchCase &row, const QString &path) {
        return std::make_unique<ClientFetch>(row, path, park.Authorities());
    });
    return Compare(cases, curl, ours, Differences(arguments[1])) == 0 ? 0 : disagree;
}
