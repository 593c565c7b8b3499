#include "controls/control.h"

namespace lanterra {

void Control::SetEnabled(bool on) {
    if (enabled == on)
        return;
    enabled = on;
    emit EnabledChanged(on);
}

void Control::SetVisible(bool on) {
    if (visible == on)
        return;
    visible = on;
    emit VisibleChanged(on);
}

void AddToForm(QObject &form, QObject &control, const QString &name) {
    control.setObjectName(name);
    control.setParent(&form);
}

} // namespace lanterra
