#include "park/exact_timer.h"

#include <QTimer>
#include <sys/timerfd.h>
#include <unistd.h>

namespace lanterra {

ExactTimer::~ExactTimer() { Stop(); }

void ExactTimer::Start(std::chrono::milliseconds duration) {
    Stop();
    descriptor = ::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
    if (descriptor < 0) {
        QTimer::singleShot(duration, Qt::PreciseTimer, this, &ExactTimer::Elapsed);
        return;
    }
    const auto whole = std::chrono::floor<std::chrono::seconds>(duration);
    itimerspec time{};
    time.it_value.tv_sec = whole.count();
    time.it_value.tv_nsec = std::chrono::nanoseconds(duration - whole).count();
    ::timerfd_settime(descriptor, 0, &time, nullptr);
    notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        Stop();
        emit Elapsed();
    });
}

// May be called in the notifier's own event, so that object goes behind it.
void ExactTimer::Stop() {
    if (descriptor < 0)
        return;
    notifier->setEnabled(false);
    notifier->deleteLater();
    ::close(descriptor);
    descriptor = -1;
}

} // namespace lanterra
