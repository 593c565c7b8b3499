#pragma once

#include "controls/label.h"

namespace lanterra {

/// frmSplash: the picture that stands on the screen while the program starts. Hidden until then.
class SplashForm : public Control {
    Q_OBJECT

public:
    SplashForm();

    Label lblVersion;
};

} // namespace lanterra
