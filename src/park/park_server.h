#pragma once

#include "park/access_log.h"
#include "park/loopback_server.h"
#include "park/park.h"

#include <memory>

namespace lanterra {

/// The practice web on 127.0.0.1, on one thread.
class ParkServer : public LoopbackServer {
    Q_OBJECT

public:
    /// Every answer's first byte comes `latency` milliseconds later than it could. `accessLog` must outlive
    /// the server.
    ParkServer(int latency, AccessLog &accessLog);

    /// Begins to listen; port 0 takes a free one. False if that fails: see serverError and errorString.
    bool Start(quint16 port);

    /// "http://127.0.0.1:PORT", once it listens.
    QString Origin() const;

    /// What is served; null until Start has succeeded.
    Park *Content() const { return park.get(); }

protected:
    void Serve(qintptr descriptor) override;

private:
    int latencyMs;
    AccessLog &log;
    std::unique_ptr<Park> park;
};

} // namespace lanterra
