#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace lanterra {

/// One address to fetch, and what must come of it.
struct FetchCase {
    QString way;           ///< how it is reached: "plain", "tls", "proxy", "tunnel", or a gate's name
    QString page;          ///< the behaviour
    QString address;       ///< in full
    quint16 proxyPort = 0; ///< on this computer; 0 for none
    QString outcome;       ///< "ok", "failed", "time limit"
    QString disk;          ///< as in the table of behaviours

    QString Name() const { return way + u' ' + page; }
    /// Milliseconds that an exchange gets: few where it is known to end by them alone.
    int Limit() const { return outcome == u"time limit" ? 1'500 : 15'000; }
};

/// What a fetch left in its file, which held "old page" before it.
struct SavedPage {
    qint64 size = -1; ///< -1 without a file
    QByteArray start; ///< the first bytes, 100 at most
    QByteArray digest;

    static SavedPage In(const QString &path);

    /// Whether this is what the table means by `disk`.
    bool Is(const QString &disk) const;
};

struct FetchResult {
    QString outcome;
    QString reason; ///< of a failure
    SavedPage page;
    qint64 milliseconds = 0;
};

/// A fetch that is under way.
class FetchJob : public QObject {
    Q_OBJECT

public:
    bool HasEnded() const { return !result.outcome.isEmpty(); }
    const FetchResult &Result() const { return result; }

protected:
    FetchJob() { sinceStart.start(); }

    /// Only the first call counts. A page with an error status is a failure, as it is in a run.
    void End(const QString &outcome, int status, const QString &reason);
    /// Behind End: a better measured time than that from the beginning of the job.
    void TakeTime(qint64 milliseconds) { result.milliseconds = milliseconds; }

private:
    QElapsedTimer sinceStart;
    FetchResult result;
};

/// Begins a job that writes to the file.
using FetchStarter = std::function<std::unique_ptr<FetchJob>(const FetchCase &, const QString &path)>;

/// Runs all cases, `parallel` of them at a time, and gives their results in the order of the cases. The event
/// queue runs meanwhile.
QList<FetchResult> RunAll(const QList<FetchCase> &cases, int parallel, const FetchStarter &start);

} // namespace lanterra
