#include "submission/submission_channel.h"

#include "reports/site_pages.h"
#include "support/code_page.h"
#include "support/numbers.h"

using namespace Qt::StringLiterals;

namespace lanterra {

SubmissionChannel::SubmissionChannel(Parts theParts) : parts(std::move(theParts)) {
    connect(parts.client.get(), &HttpClient::Connected, this, &SubmissionChannel::OnConnected);
    connect(parts.client.get(), &HttpClient::Data, this, &SubmissionChannel::OnData);
    connect(parts.client.get(), &HttpClient::Done, this, &SubmissionChannel::OnDone);
    connect(parts.client.get(), &HttpClient::Error, this, &SubmissionChannel::OnError);
}

// `completed` keeps its value: only a claim lowers it.
void SubmissionChannel::BeginRun() {
    lastFailedSite = noSite;
    disabled = false;
    closed = true;
}

void SubmissionChannel::ClearDisplay() {
    parts.display.status.SetCaption(QString());
    parts.display.site.SetCaption(QString());
}

void SubmissionChannel::Prepare() {
    ClearDisplay();
    free = true;
    SwitchOn();
}

void SubmissionChannel::SwitchOn() {
    parts.client->SetRequestSwitchA(true);
    parts.client->SetRequestSwitchB(true);
}

void SubmissionChannel::Claim(const SiteRequest &siteRequest, const QString &name, int listIndex) {
    HttpClient &client = *parts.client;
    completed = closed = free = false;
    request = siteRequest;
    siteName = name;
    client.SetResponseText(QString());
    firstChunk = true;
    siteIndex = listIndex;
    parts.display.site.SetCaption(siteName);
    SwitchOn();
    client.SetTarget(RequestTarget(request));
    parts.display.button.SetPicture(ButtonPicture::Dispatched);
    parts.display.status.SetCaption(u"finding site..."_s);
    client.SetSaveFile(CanHavePage(siteName) ? SitePagePath(parts.result.reportFolder, siteName) : QString());
    parts.result.NoteDispatch(parts.clock.Elapsed());
    client.ConnectToHost();
    startSecond = RoundHalfEven(parts.clock.Timer());
}

double SubmissionChannel::SecondsLeft(double limitSeconds) const {
    const auto due = static_cast<float>(startSecond + limitSeconds);
    return static_cast<double>(due - parts.clock.Timer());
}

bool SubmissionChannel::Expired(double limitSeconds) const { return SecondsLeft(limitSeconds) < 0; }

void SubmissionChannel::TimeOut(double limitSeconds) {
    parts.client->Abort();
    RecordFailure(u"No answer within %1 s"_s.arg(limitSeconds));
    closed = free = true;
}

void SubmissionChannel::Cancel(const QString &reason) {
    parts.client->Abort();
    if (!Ended())
        parts.result.Explain(siteIndex, reason);
    free = true;
}

void SubmissionChannel::mnuAbort_Click() { parts.client->AbortWithError(); }

// The mark and the state are turned separately, and the start of a run lowers only the state: a mark left
// over from the run before shows the opposite from then on. Users of several runs know the entry that way.
void SubmissionChannel::mnuDisabled_Click() {
    parts.display.disableMark.SetValue(1 - parts.display.disableMark.Value());
    disabled = !disabled;
}

// Not only in flight: a Connected that was on its way when Cancel came makes the run wait for that channel,
// which the watchdog frees.
void SubmissionChannel::OnConnected() {
    free = false;
    parts.display.status.SetCaption(u"connected"_s);
    parts.display.button.SetPicture(ButtonPicture::Connected);
    parts.client->SetRequestHeaders(SubmissionHeaders(request, parts.client->HostName()));
    if (IsPost(request.method))
        parts.client->SendPost();
    else
        parts.client->SendGet();
}

void SubmissionChannel::OnData(const QByteArray &block) {
    if (!firstChunk)
        return;
    firstChunk = false;
    const QString text = CodePage::Decode(block);
    if (parts.headerScan)
        parts.headerScan->ScanLocation(text);
    header.SetRawHeader(text);
    header.Parse();
    redirectTarget = header.LocationValue();
}

bool SubmissionChannel::AnswerIsFailure() const {
    return header.StatusClass() == "Client Error"_L1 || header.StatusClass() == "Server Error"_L1;
}

void SubmissionChannel::OnDone() {
    if (Ended())
        return;
    // Without data the header of the channel's last answer still stands, and decides.
    if (AnswerIsFailure()) {
        parts.display.button.SetPicture(ButtonPicture::Idle);
        RecordFailure(header.StatusText());
    } else {
        RecordSuccess();
        parts.display.status.SetCaption(u"done!"_s);
    }
    if (header.StatusClass() == "Redirection"_L1)
        WriteSitePage(parts.result.reportFolder, siteName, RedirectionPage(redirectTarget, siteName));
    completed = free = true;
}

void SubmissionChannel::OnError() {
    if (Ended())
        return;
    parts.lastErrorSite = siteIndex;
    parts.display.button.SetPicture(ButtonPicture::Idle);
    RecordFailure(parts.client->FailureReason());
}

void SubmissionChannel::NoteVerdict(Verdict verdict, const QString &reason) {
    const bool answered = !firstChunk;
    parts.result.Judge(siteIndex,
                       {verdict, answered ? header.StatusCode() : std::nullopt, parts.client->BodyBytes(),
                        reason, answered ? header.StatusText() : QString()},
                       parts.clock.Elapsed());
}

void SubmissionChannel::RecordSuccess() {
    parts.result.AddSuccess(siteName, siteIndex);
    NoteVerdict(Verdict::Successful, QString());
}

void SubmissionChannel::RecordFailure(const QString &reason) {
    if (Ended())
        return;
    if (parts.result.FailedNames.AnyHolds(siteName)) {
        NoteVerdict(Verdict::None, reason);
        closed = true;
        return;
    }
    if (siteIndex != lastFailedSite) {
        parts.result.AddFailure(siteName, siteIndex);
        NoteVerdict(Verdict::Failed, reason);
    }
    lastFailedSite = siteIndex;
    closed = free = true;
}

} // namespace lanterra
