#include "shell/splash_form.h"

using namespace Qt::StringLiterals;

namespace lanterra {

SplashForm::SplashForm() {
    SetVisible(false);
    AddToForm(*this, lblVersion, u"lblVersion"_s);
    lblVersion.SetCaption(u"Version "_s + u"2.14"_s);
}

} // namespace lanterra
