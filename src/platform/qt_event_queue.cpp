#include "platform/qt_event_queue.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimer>
#include <algorithm>

namespace lanterra {

namespace {
constexpr std::chrono::milliseconds longestSleep =
    std::chrono::hours(24); ///< a timer's range ends at 24 days
}

void QtEventQueue::Yield() { QCoreApplication::processEvents(); }

void QtEventQueue::Wait(std::chrono::milliseconds atMost) {
    if (closing || atMost.count() <= 0) {
        Yield();
        return;
    }
    // The timer needs no slot: its event is what ends the sleep.
    QTimer limit;
    limit.setTimerType(Qt::PreciseTimer);
    limit.start(std::min(atMost, longestSleep));
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void QtEventQueue::Close() {
    closing = true;
    if (QAbstractEventDispatcher *const dispatcher = QCoreApplication::eventDispatcher())
        dispatcher->wakeUp();
}

} // namespace lanterra
