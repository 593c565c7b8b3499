#include "platform/interrupt.h"

#include <QSocketNotifier>
#include <sys/signalfd.h>
#include <unistd.h>

namespace lanterra {

Interrupt::Interrupt() {
    sigemptyset(&signalsOfUser);
    for (const int number : {SIGINT, SIGTERM}) {
        struct sigaction action {};
        sigaction(number, nullptr, &action);
        if (action.sa_handler != SIG_IGN)
            sigaddset(&signalsOfUser, number);
    }
    pthread_sigmask(SIG_BLOCK, &signalsOfUser, &oldMask);
    descriptor = signalfd(-1, &signalsOfUser, SFD_CLOEXEC | SFD_NONBLOCK);
    if (descriptor < 0)
        pthread_sigmask(SIG_SETMASK, &oldMask, nullptr); // the signals end the process, as without this
}

void Interrupt::Watch() {
    if (descriptor < 0)
        return;
    auto *const notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &Interrupt::TakeSignal);
}

Interrupt::~Interrupt() { Release(); }

void Interrupt::TakeSignal() {
    signalfd_siginfo info{};
    if (pressed || read(descriptor, &info, sizeof info) != sizeof info)
        return;
    pressed = true;
    Release();
    emit Pressed();
}

void Interrupt::Release() {
    if (descriptor < 0)
        return;
    if (auto *const notifier = findChild<QSocketNotifier *>()) {
        notifier->setEnabled(false);
        notifier->deleteLater(); // it may be its own signal that leads here
    }
    close(descriptor);
    descriptor = -1;
    pthread_sigmask(SIG_SETMASK, &oldMask, nullptr);
}

} // namespace lanterra
