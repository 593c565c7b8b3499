#pragma once

#include "ports/clock.h"
#include "ports/http_client.h"
#include "reports/run_result.h"
#include "submission/http_header.h"
#include "submission/request_headers.h"
#include "submission/response_analysis.h"
#include "submission/submit_form.h"

#include <memory>

namespace lanterra {

/// One of the five slots that carry one request each. It is in flight while neither `closed` nor `completed`;
/// a Done or Error that comes at any other time is dropped. Events carry no identity, so a late one that
/// falls on the next site counts for that site.
class SubmissionChannel : public QObject {
    Q_OBJECT

public:
    /// The index of `lastFailedSite` and its like when there was no failure yet.
    static constexpr int noSite = 2000;

    struct Parts {
        std::unique_ptr<HttpClient> client;
        ChannelDisplay &display;
        RunResult &result;
        int &lastErrorSite; ///< takes the site of each accepted Error event
        const Clock &clock;
        /// Set for the one channel that also scans the raw header of an answer, and throws the result away.
        /// The scan yields, which gives that channel its place in the order of events.
        ResponseAnalysis *headerScan = nullptr;
    };

    /// What the parts refer to must outlive this.
    explicit SubmissionChannel(Parts theParts);

    /// Readies the channel for a run.
    void BeginRun();
    /// Empties the displays, and no more.
    void ClearDisplay();
    /// Empties the displays, frees the channel and switches on the two request switches of its client.
    void Prepare();

    /// Takes the site of this name at `listIndex` of List1 and begins its exchange.
    void Claim(const SiteRequest &siteRequest, const QString &name, int listIndex);

    /// Whether the time since dispatch has passed the limit, both in seconds. Whatever came in meanwhile
    /// doesn't count.
    bool Expired(double limitSeconds) const;
    /// Seconds until Expired turns true; negative behind that.
    double SecondsLeft(double limitSeconds) const;
    /// Cuts the exchange off as failed because the limit has passed.
    void TimeOut(double limitSeconds);

    /// Ends the exchange silently, for Cancel, and frees the channel. A site in flight keeps the reason
    /// unless it is judged all the same. `closed` and `completed` stay: a channel that was cancelled in
    /// flight takes no other site in this run.
    void Cancel(const QString &reason);

    /// "Abort": only asks the client. What changes comes with the Error event that follows.
    void mnuAbort_Click();
    /// "Disable": turns the entry's mark and `disabled` around.
    void mnuDisabled_Click();

    HttpClient &Client() { return *parts.client; }
    bool Ended() const { return closed || completed; }
    bool Free() const { return free; }
    bool Disabled() const { return disabled; }

private:
    void SwitchOn();

    void OnConnected();
    void OnData(const QByteArray &block);
    void OnDone();
    void OnError();
    bool AnswerIsFailure() const;
    /// Records a failure of the site, once a request. A site whose name is part of the name of one that has
    /// failed before is not listed and doesn't count; its channel is then closed, but only the watchdog frees
    /// it.
    void RecordFailure(const QString &reason);
    /// Adds the site to the successful ones.
    void RecordSuccess();
    void NoteVerdict(Verdict verdict, const QString &reason);

    Parts parts;
    HttpHeader header;
    bool free =
        true; ///< the wait loops count on it: raised by an end or Cancel, lowered by Claim and Connected
    bool completed = false; ///< an answer was accepted as the end of the request; lowered by Claim
    bool closed = true;     ///< the request has failed, or the run has just begun; lowered by Claim
    bool disabled = false;  ///< takes no site; lowered at the start of a run
    SiteRequest request;
    QString siteName;            ///< as it stands in List1
    int siteIndex = 0;           ///< its place there
    int lastFailedSite = noSite; ///< index of the last failure recorded here
    int startSecond = 0;         ///< Clock::Timer at dispatch, rounded
    bool firstChunk = false;     ///< no data has come for this request yet
    QString redirectTarget;
};

} // namespace lanterra
