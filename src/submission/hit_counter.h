#pragma once

#include "ports/http_client.h"
#include "settings/hosts.h"
#include "settings/options.h"

#include <memory>

namespace lanterra {

/// One request a run to a counter of the product owner's, at one address until the first such exchange has
/// ended and at another from then on. Nothing depends on the answer, and without an address no request is
/// made.
class HitCounter : public QObject {
    Q_OBJECT

public:
    /// `scratchPath` is the file that takes the answer. Hosts and options must outlive this.
    HitCounter(std::unique_ptr<HttpClient> httpClient, const Hosts &outsideHosts, Options &userOptions,
               const QString &scratchPath);

    /// Begins the request; one of an earlier run that is still under way is given up.
    void Fire();

    /// Deletes the scratch file that the answer went to, and that of an answer still to come when it has
    /// come.
    void RemoveScratchFile();

private:
    std::unique_ptr<HttpClient> client;
    const Hosts &hosts;
    Options &options;
    QString scratchFile;
    bool runEnded = false; ///< the scratch file is not kept
};

} // namespace lanterra
