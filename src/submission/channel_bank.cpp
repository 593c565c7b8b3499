#include "submission/channel_bank.h"

#include "controls/text_box.h"
#include "support/numbers.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr std::size_t scanningChannel = 2; ///< channel 3
constexpr std::chrono::milliseconds shortestWait{1};
constexpr double longestWaitSeconds = 86400;

double LimitSeconds(const TextBox &txtLimit) {
    return std::clamp(LeadingNumber(txtLimit.Text()), -longestWaitSeconds, longestWaitSeconds);
}

} // namespace

ChannelBank::ChannelBank(const Parts &theParts, const ClientFactory &makeClient)
    : parts(theParts), headerScan(theParts.queue) {
    for (std::size_t i = 0; i < channels.size(); ++i) {
        ResponseAnalysis *scan = i == scanningChannel ? &headerScan : nullptr;
        channels[i] = std::make_unique<SubmissionChannel>(SubmissionChannel::Parts{
            makeClient(), parts.form.channels[i], parts.result, lastErrorSite, parts.clock, scan});
    }
}

void ChannelBank::BeginRun() {
    lastErrorSite = SubmissionChannel::noSite;
    for (const auto &channel : channels)
        channel->BeginRun();
}

void ChannelBank::Prepare() {
    for (const auto &channel : channels)
        channel->Prepare();
}

void ChannelBank::CancelAll(const QString &reason) {
    for (const auto &channel : channels)
        channel->Cancel(reason);
}

void ChannelBank::ShowIdle() {
    for (ChannelDisplay &display : parts.form.channels)
        display.button.SetPicture(ButtonPicture::Idle);
}

bool ChannelBank::AnyFree() const {
    return std::any_of(channels.begin(), channels.end(), [](const auto &channel) { return channel->Free(); });
}

bool ChannelBank::AllFree() const {
    return std::all_of(channels.begin(), channels.end(), [](const auto &channel) { return channel->Free(); });
}

SubmissionChannel *ChannelBank::Candidate() {
    const auto found =
        std::find_if(channels.begin(), channels.end(), [](const auto &channel) { return channel->Ended(); });
    return found == channels.end() ? nullptr : found->get();
}

void ChannelBank::Connect(const SiteRequest &request, int nextSite) {
    SubmissionChannel *candidate = Candidate();
    const SiteLists &lists = parts.lists;
    if (candidate && nextSite == lists.List1.ListCount())
        return;
    if (candidate && lists.List1.Selected(nextSite)) {
        if (candidate->Disabled())
            parts.result.Explain(nextSite, u"not sent, because the channel that was next is disabled"_s);
        else
            candidate->Claim(request, lists.SiteName(nextSite), nextSite);
    }
    parts.queue.Yield();
    CheckChannelTimeouts();
}

void ChannelBank::CheckChannelTimeouts() {
    for (const auto &channel : channels) {
        const double limit = LimitSeconds(parts.txtLimit);
        if (!channel->Free() && channel->Expired(limit))
            channel->TimeOut(limit);
    }
}

void ChannelBank::WaitForChannels() {
    parts.queue.Wait(UntilNextTimeout());
    CheckChannelTimeouts();
}

std::chrono::milliseconds ChannelBank::UntilNextTimeout() const {
    const double limit = LimitSeconds(parts.txtLimit);
    double seconds = longestWaitSeconds;
    for (const auto &channel : channels) {
        if (!channel->Free())
            seconds = std::min(seconds, channel->SecondsLeft(limit));
    }
    // The watchdog wants the moment to be past, not reached.
    const std::chrono::milliseconds wait{static_cast<qint64>(std::floor(seconds * 1000)) + 1};
    return std::max(wait, shortestWait);
}

} // namespace lanterra
