#include "controls/check_box.h"

namespace lanterra {

void CheckBox::SetValue(int newValue) {
    if (newValue == value || (newValue != 0 && newValue != 1))
        return;
    value = newValue;
    emit ValueChanged(value);
}

void JoinAsOptions(CheckBox &first, CheckBox &second) {
    first.SetValue(1);
    second.SetValue(0);
    QObject::connect(&first, &CheckBox::ValueChanged, &second, [&second](int on) { second.SetValue(1 - on); });
    QObject::connect(&second, &CheckBox::ValueChanged, &first, [&first](int on) { first.SetValue(1 - on); });
}

} // namespace lanterra
