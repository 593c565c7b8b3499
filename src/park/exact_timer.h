#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <chrono>

namespace lanterra {

/// Ends after a time that is exact to some ten microseconds. Qt's timers end at whole milliseconds, those of
/// the same one together: five answers that are due one after the other would leave in one clump, late by up
/// to a millisecond, and what is measured against a latency would be measured too slow.
class ExactTimer : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~ExactTimer() override;
    Q_DISABLE_COPY_MOVE(ExactTimer)

    /// Begins anew. Where the system has no timer left, one of Qt's takes its place.
    void Start(std::chrono::milliseconds duration);

signals:
    void Elapsed();

private:
    void Stop();

    int descriptor = -1;
    QSocketNotifier *notifier = nullptr; ///< of the descriptor; a child of this
};

} // namespace lanterra
