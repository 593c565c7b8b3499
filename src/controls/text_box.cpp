#include "controls/text_box.h"

namespace lanterra {

void TextBox::SetText(const QString &newText) {
    if (text == newText)
        return;
    text = newText;
    selStart = 0;
    selLength = 0;
    emit TextChanged(text);
}

void TextBox::Select(qsizetype start, qsizetype length) {
    selStart = start;
    selLength = length;
    emit SelectionChanged(start, length);
}

} // namespace lanterra
