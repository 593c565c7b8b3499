#pragma once

#include "ports/event_queue.h"
#include "project/site_lists.h"
#include "submission/submission_channel.h"

#include <array>
#include <functional>

namespace lanterra {

class TextBox;

/// The five channels: hands sites to them and watches their time.
class ChannelBank {
public:
    /// Makes the clients of the five channels, in order.
    using ClientFactory = std::function<std::unique_ptr<HttpClient>()>;

    struct Parts {
        SubmitForm &form;
        RunResult &result;
        const SiteLists &lists;
        const TextBox &txtLimit; ///< seconds that a request may take, as a text
        EventQueue &queue;
        const Clock &clock;
    };

    /// All parts must outlive this. `makeClient` is called five times and not kept.
    ChannelBank(const Parts &theParts, const ClientFactory &makeClient);
    ~ChannelBank() = default;
    Q_DISABLE_COPY_MOVE(ChannelBank)

    /// `number` is 1 to 5; any other throws std::out_of_range.
    SubmissionChannel &Channel(int number) { return *channels.at(static_cast<std::size_t>(number - 1)); }

    /// Makes all channels ready for sites, none of them disabled.
    void BeginRun();
    /// Empties what the pane shows of them, frees them and switches their clients on.
    void Prepare();
    /// Ends all exchanges silently and frees the channels, in their order. The sites in flight get the
    /// reason.
    void CancelAll(const QString &reason);
    /// Gives all buttons the idle picture.
    void ShowIdle();

    bool AnyFree() const;
    bool AllFree() const;

    /// Hands the site at `nextSite` to the lowest-numbered channel that has ended. That one channel is the
    /// only candidate: if it is disabled the site gets no request and no verdict, and so do all sites behind
    /// it for as long as no lower-numbered channel has ended. Yields once and runs the watchdog.
    void Connect(const SiteRequest &request, int nextSite);

    /// The watchdog: fails every channel that isn't free and whose time has passed.
    void CheckChannelTimeouts();

    /// Sleeps until an event arrives or the watchdog is due, then runs it. Yields.
    void WaitForChannels();

    int lastErrorSite =
        SubmissionChannel::noSite; ///< site of the last accepted Error event; nothing reads it

private:
    SubmissionChannel *Candidate();
    std::chrono::milliseconds UntilNextTimeout() const;

    Parts parts;
    ResponseAnalysis headerScan;
    std::array<std::unique_ptr<SubmissionChannel>, channelCount> channels;
};

} // namespace lanterra
