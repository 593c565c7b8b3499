#pragma once

#include <QObject>
#include <csignal>

class QSocketNotifier;

namespace lanterra {

/// Turns the first Ctrl-C or SIGTERM of the process into an event. From then on, and once this is gone, both
/// signals end the process again. A signal that the process was started to ignore stays ignored. One object
/// at a time, made before the process has a second thread, which would take the signals; so it may be made
/// before the application object, as that of a window starts threads.
class Interrupt final : public QObject {
    Q_OBJECT

public:
    /// Holds the signals back.
    Interrupt();
    ~Interrupt() override;
    Q_DISABLE_COPY_MOVE(Interrupt)

    /// Tells of them from now on, also of one that was held back. The application object must exist.
    void Watch();

    bool WasPressed() const { return pressed; }

signals:
    void Pressed();

private:
    void TakeSignal();
    void Release();

    sigset_t signalsOfUser{};
    sigset_t oldMask{};
    int descriptor = -1; ///< of the signal file, -1 once released
    bool pressed = false;
};

} // namespace lanterra
