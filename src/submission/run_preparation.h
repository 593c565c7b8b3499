#pragma once

#include "ports/event_queue.h"
#include "project/project.h"
#include "project/status_form.h"
#include "reports/run_result.h"
#include "settings/proxy_settings.h"
#include "submission/channel_bank.h"
#include "submission/hit_counter.h"
#include "submission/request_collector.h"

namespace lanterra {

/// Makes all ready for a run that has passed its checks: the pages of its sites, the entries, the displays
/// and the channels, and the request of each selected site.
class RunPreparation {
public:
    struct Parts {
        Project &project;
        StatusForm &status;
        ProxySettings &proxy;
        ChannelBank &channels;
        SubmitForm &form;
        RequestCollector &collector;
        HitCounter &counter;
        RunResult &result;
        EventQueue &queue;
    };

    /// All parts must outlive this.
    explicit RunPreparation(const Parts &theParts) : parts(theParts) {}

    /// Begins the result anew, gives every selected site its page, puts the entries right, readies the
    /// channels and calls the hit counter. A page that can't be written is passed over. Yields.
    void Prepare();

    /// Saves the marks of List1, which the result notes if it fails, and makes the requests. False if the
    /// user has cancelled the latter. Yields.
    bool CollectRequests();

private:
    void PrepareReportPages();

    Parts parts;
};

} // namespace lanterra
