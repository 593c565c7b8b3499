#pragma once

#include <QApplication>
#include <QMainWindow>
#include <QTimer>
#include <cstdlib>

namespace lanterra {

/// Ends the process at once, and with success, when a main window was painted for the first time. What a
/// program does at its end is no part of its start.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(QApplication &application) { application.installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override {
        // The window is painted before what stands in it, all in one turn of the event queue. The next turn
        // serves the user.
        if (event->type() == QEvent::Paint && qobject_cast<QMainWindow *>(watched))
            QTimer::singleShot(0, [] { std::_Exit(EXIT_SUCCESS); });
        return false;
    }
};

} // namespace lanterra
