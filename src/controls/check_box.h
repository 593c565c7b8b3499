#pragma once

#include "controls/control.h"

namespace lanterra {

/// A check mark, 0 or 1 as it is stored.
class CheckBox : public Control {
    Q_OBJECT

public:
    int Value() const { return value; }
    bool Checked() const { return value == 1; }

    /// Any number but 0 and 1 is passed over and leaves the old value.
    void SetValue(int newValue);

signals:
    void ValueChanged(int value);

private:
    int value = 0;
};

/// Makes the two options of one choice: from now on exactly one is checked, the first to begin with. Both must
/// live equally long.
void JoinAsOptions(CheckBox &first, CheckBox &second);

} // namespace lanterra
