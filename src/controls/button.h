#pragma once

#include "controls/control.h"

namespace lanterra {

/// The pictures that a button can carry: none, or one of a channel's states.
enum class ButtonPicture { None, Idle, Dispatched, Connected };

/// A button. What its press does stands in the handler that bears the button's name.
class Button : public Control {
    Q_OBJECT

public:
    ButtonPicture Picture() const { return picture; }
    void SetPicture(ButtonPicture newPicture);

    /// A button can stand out as marked ("raised") to show that a mode is on.
    bool Marked() const { return marked; }
    void SetMarked(bool on);

signals:
    void PictureChanged(lanterra::ButtonPicture picture);
    void MarkedChanged(bool on);

private:
    ButtonPicture picture = ButtonPicture::None;
    bool marked = false;
};

} // namespace lanterra
