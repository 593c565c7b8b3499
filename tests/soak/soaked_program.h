#pragma once

#include "park/park_server.h"
#include "platform/qt_event_queue.h"
#include "platform/system_clock.h"
#include "tests/fakes/fake_doors.h"

#include <QTemporaryDir>

namespace lanterra {

/// A whole program with real clients that submits the example project to a practice web in the same process:
/// to all of its sites but those that answer late or never.
class SoakedProgram {
public:
    /// False if the practice web, the database or the project could not be made.
    bool Start();

    /// One run, and the statistics cleared behind it, since those grow by design. Returns how it went: "116
    /// successful, 12 failed" and what else a person must know; the same words each time if all is well.
    QString Run();

private:
    bool BuildMaster() const;

    QTemporaryDir home;
    AccessLog log{QString()};
    ParkServer server{0, log};
    QtEventQueue queue;
    SystemClock clock;
    FakeDoors doors; ///< all but queue, clock and clients
    std::unique_ptr<Program> program;
};

} // namespace lanterra
