#include "platform/qt_event_queue.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimer>

namespace lanterra {

void QtEventQueue::Yield() { QCoreApplication::processEvents(); }

void QtEventQueue::Wait(std::chrono::milliseconds atMost) {
    if (closing || atMost.count() <= 0) {
        Yield();
        return;
    }
    // The timer needs no slot: its event is what ends the sleep.
    QTimer limit;
    limit.setTimerType(Qt::PreciseTimer);
    if (atMost != withoutEnd)
        limit.start(atMost);
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void QtEventQueue::Close() {
    closing = true;
    if (QAbstractEventDispatcher *const dispatcher = QCoreApplication::eventDispatcher())
        dispatcher->wakeUp();
}

} // namespace lanterra
