#include "controls/label.h"

namespace lanterra {

void Label::SetCaption(const QString &text) {
    if (caption == text)
        return;
    caption = text;
    emit CaptionChanged(caption);
}

} // namespace lanterra
