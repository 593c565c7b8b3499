#pragma once

#include "controls/control.h"

namespace lanterra {

/// A whole number from 0 to a maximum, moved by a person or by the program.
class ScrollBar : public Control {
    Q_OBJECT

public:
    int Value() const { return value; }
    int Maximum() const { return maximum; }

    /// A value outside 0 to Maximum is clipped.
    void SetValue(int newValue);

    /// A negative maximum counts as 0. The value is clipped to the new maximum.
    void SetMaximum(int newMaximum);

signals:
    void ValueChanged(int value);
    void MaximumChanged(int maximum);

private:
    int value = 0;
    int maximum = 9;
};

} // namespace lanterra
