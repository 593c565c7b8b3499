#pragma once

#include "shell/splash_form.h"

#include <QSplashScreen>

namespace lanterra {

/// frmSplash: the picture of the program while it starts.
class SplashWindow : public QSplashScreen {
    Q_OBJECT

public:
    /// The form must outlive this.
    explicit SplashWindow(SplashForm &form);

private:
    void Present(const QString &version);
};

} // namespace lanterra
