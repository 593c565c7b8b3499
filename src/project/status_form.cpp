#include "project/status_form.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

void StatusForm::Show(const QString &text, int newMaximum) {
    StatusCancel = false;
    maximum = std::max(newMaximum, 1);
    value = 0;
    Caption.SetCaption(u"Submission status"_s);
    Label1.SetCaption(text);
    SetVisible(true);
    emit ValueChanged(value);
}

void StatusForm::Advance(int newValue) {
    value = std::min(newValue, maximum);
    emit ValueChanged(value);
}

void StatusForm::Finish() {
    Advance(maximum);
    SetVisible(false);
}

void StatusForm::SSCommand1_Click() {
    StatusCancel = true;
    SetVisible(false);
}

void StatusForm::SetVisible(bool show) {
    if (visible == show)
        return;
    visible = show;
    emit VisibleChanged(show);
}

} // namespace lanterra
