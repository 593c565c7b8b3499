#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <functional>

namespace lanterra {

/// Lets events happen until the condition holds, and objects go that wait for their deletion. False if that
/// takes longer than twenty seconds.
inline bool WaitUntil(const std::function<bool()> &condition) {
    QTimer wake; // so that a wait for events comes to its deadline
    wake.start(std::chrono::milliseconds(100));
    for (const QDeadlineTimer deadline(std::chrono::seconds(20)); !condition() && !deadline.hasExpired();) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return condition();
}

} // namespace lanterra
