#pragma once

#include "ports/clock.h"
#include "ports/http_client.h"
#include "reports/run_result.h"
#include "submission/http_header.h"
#include "submission/request_headers.h"
#include "submission/response_analysis.h"
#include "submission/submit_form.h"

#include <functional>
#include <memory>

namespace lanterra {

/// One of the five slots that carry one request each. It is in flight while neither `closed` nor `completed`; an
/// event that comes at any other time is dropped. Events carry no identity, so a late one that falls on the next
/// site counts for that site.
class SubmissionChannel : public QObject {
    Q_OBJECT

public:
    /// The index of `lastFailedSite` and its like when there was no failure yet.
    static constexpr int noSite = 2000;

    struct Parts {
        std::unique_ptr<HttpClient> client;
        ChannelDisplay &display;
        RunResult &result;
        const Clock &clock;
        /// Set for the one channel that also scans the raw header of an answer, and throws the result away. The
        /// scan yields, which gives that channel its place in the order of events.
        ResponseAnalysis *headerScan = nullptr;
    };

    explicit SubmissionChannel(Parts theParts);

    /// Readies the channel for a run.
    void BeginRun();
    /// Empties the displays.
    void ClearDisplay();

    /// Takes the site at `listIndex` and begins its exchange.
    void Claim(const SiteRequest &request, int listIndex);

    /// Whether the time since dispatch has passed the limit, both in seconds. Whatever came in meanwhile doesn't
    /// count.
    bool Expired(double limitSeconds) const;
    /// Seconds until Expired turns true; negative behind that.
    double SecondsLeft(double limitSeconds) const;
    /// Cuts the exchange off as failed because the limit has passed.
    void TimeOut(double limitSeconds);

    /// Ends the exchange silently, for Cancel, and frees the channel.
    void Cancel();

    void mnuAbort_Click();
    void mnuDisabled_Click();

    /// Records a failure of the site, once a request. A site whose name is part of the name of one that has failed
    /// before is not listed and doesn't count; its channel is then closed, but only the watchdog frees it.
    void RecordFailure(const QString &reason);
    void RecordSuccess();

    HttpClient &Client() { return *parts.client; }
    bool Ended() const { return closed || completed; }

    bool free = true;
    bool completed = false;
    bool closed = true;
    bool disabled = false;
    int siteIndex = 0; ///< List1 index of the site that the channel carries
    int lastFailedSite = noSite;

signals:
    /// An Error event was accepted for the site at this index.
    void ErrorAccepted(int listIndex);

private:
    void OnConnected();
    void OnData(const QByteArray &block);
    void OnDone();
    void OnError();
    bool AnswerIsFailure() const;
    void NoteVerdict(Verdict verdict, const QString &reason);

    Parts parts;
    HttpHeader header;
    SiteRequest request;
    int startSecond = 0;     ///< Clock::Timer at dispatch, rounded
    bool firstChunk = false; ///< no data has come for this request yet
    QString redirectTarget;
};

} // namespace lanterra
