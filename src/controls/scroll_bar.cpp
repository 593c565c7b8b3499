#include "controls/scroll_bar.h"

#include <algorithm>

namespace lanterra {

void ScrollBar::SetValue(int newValue) {
    newValue = std::clamp(newValue, 0, maximum);
    if (value == newValue)
        return;
    value = newValue;
    emit ValueChanged(value);
}

void ScrollBar::SetMaximum(int newMaximum) {
    newMaximum = std::max(newMaximum, 0);
    if (maximum == newMaximum)
        return;
    maximum = newMaximum;
    emit MaximumChanged(maximum);
    SetValue(value);
}

} // namespace lanterra
