#include "shell/splash_form.h"

#include "support/product.h"

using namespace Qt::StringLiterals;

namespace lanterra {

SplashForm::SplashForm() {
    SetVisible(false);
    AddToForm(*this, lblVersion, u"lblVersion"_s);
    lblVersion.SetCaption(VersionCaption());
}

} // namespace lanterra
