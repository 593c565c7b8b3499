#include "controls/check_box.h"

namespace lanterra {

void CheckBox::SetValue(int newValue) {
    if (newValue == value || (newValue != 0 && newValue != 1))
        return;
    value = newValue;
    emit ValueChanged(value);
}

} // namespace lanterra
