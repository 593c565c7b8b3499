#include "window/splash_window.h"

#include "window/icons.h"

#include <QCoreApplication>

namespace lanterra {

namespace {
constexpr QSize pictureSize(480, 300);
constexpr QColor versionColour(255, 255, 255); ///< on the picture, which is dark in either scheme
} // namespace

SplashWindow::SplashWindow(SplashForm &form)
    : QSplashScreen(ThemedIcon(QStringLiteral("splash")).pixmap(pictureSize)) {
    connect(&form, &SplashForm::VisibleChanged, this, [this, &form](bool visible) {
        if (visible)
            Present(form.lblVersion.Caption());
        else
            hide();
    });
}

// The start doesn't come back to the event queue for some time, so the picture is painted here.
void SplashWindow::Present(const QString &version) {
    showMessage(version, Qt::AlignLeft | Qt::AlignBottom, versionColour);
    show();
    repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace lanterra
