#include "controls/button.h"

namespace lanterra {

void Button::SetPicture(ButtonPicture newPicture) {
    if (picture == newPicture)
        return;
    picture = newPicture;
    emit PictureChanged(picture);
}

void Button::SetMarked(bool on) {
    if (marked == on)
        return;
    marked = on;
    emit MarkedChanged(on);
}

} // namespace lanterra
