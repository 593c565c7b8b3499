// The smallest program with a main window, up to its first painting: what the start of the window is measured
// against.

#include "bench/first_paint.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    const lanterra::FirstPaint end(application);
    QMainWindow window;
    window.resize(1000, 660);
    window.show();
    return QApplication::exec();
}
