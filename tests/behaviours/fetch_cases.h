#pragma once

#include "tests/behaviours/fetch.h"
#include "tests/behaviours/park_process.h"

namespace lanterra {

/// All behaviours of the practice web, by plain http and over TLS.
QList<FetchCase> BehaviourCases(const ParkProcess &park);

/// The same through its proxy.
QList<FetchCase> ProxyCases(const ParkProcess &park);

/// The cases of its gates, and addresses that lead nowhere.
QList<FetchCase> GateCases(const ParkProcess &park);

} // namespace lanterra
