#include "tests/window/step_player.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QWidget>
#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace lanterra {

namespace {

// No window manager gives the focus back here when a window closes.
void GiveFocusBack() {
    const QWidget *const active = QApplication::activeWindow();
    if ((active && active->isVisible()) || QApplication::activePopupWidget())
        return;
    QWidget *next = QApplication::activeModalWidget();
    for (QWidget *top : QApplication::topLevelWidgets()) {
        if (!next && top->isVisible() && top->inherits("QMainWindow"))
            next = top;
    }
    if (next)
        next->activateWindow();
}

} // namespace

StepPlayer::StepPlayer(const std::vector<Step> &theSteps, Action giveUp)
    : steps(theSteps.begin(), theSteps.end()), end(std::move(giveUp)) {
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &StepPlayer::Look);
    connect(&deadline, &QTimer::timeout, this, &StepPlayer::GiveUp);
    deadline.start(30s);
}

void StepPlayer::Look() {
    GiveFocusBack();
    if (gaveUp && QApplication::activeModalWidget())
        QMetaObject::invokeMethod(QApplication::activeModalWidget(), &QWidget::close, Qt::QueuedConnection);
    if (acting || steps.empty() || !steps.front().when.holds())
        return;
    acting = true;
    QMetaObject::invokeMethod(this, &StepPlayer::Act, Qt::QueuedConnection);
}

void StepPlayer::Act() {
    acting = false;
    if (steps.empty() || !steps.front().when.holds())
        return;
    const Action act = steps.front().act;
    steps.pop_front();
    deadline.start();
    act();
}

void StepPlayer::GiveUp() {
    const auto name = [](const QObject *object) {
        return object ? object->metaObject()->className() + (' ' + object->objectName().toStdString())
                      : "none";
    };
    ADD_FAILURE() << "This never came: "
                  << (steps.empty() ? "the end" : steps.front().when.what.toStdString())
                  << ". Active window: " << name(QApplication::activeWindow())
                  << ", popup: " << name(QApplication::activePopupWidget())
                  << ", focus: " << name(QApplication::focusWidget());
    steps.clear();
    gaveUp = true;
    end();
}

} // namespace lanterra
