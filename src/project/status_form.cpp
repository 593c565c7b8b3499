#include "project/status_form.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

StatusForm::StatusForm() {
    SetVisible(false);
    AddToForm(*this, Label1, u"Label1"_s);
}

void StatusForm::Show(const QString &text, int newMaximum) {
    if (depth++ > 0)
        waiting.push_back({Label1.Caption(), maximum, value, StatusCancel, Visible()});
    Take({text, std::max(newMaximum, 1), 0, false, true});
}

void StatusForm::Take(const Job &job) {
    StatusCancel = job.cancelled;
    maximum = job.maximum;
    value = job.value;
    Label1.SetCaption(job.text);
    SetVisible(job.visible);
    emit ValueChanged(value);
}

void StatusForm::Advance(int newValue) {
    value = std::min(newValue, maximum);
    emit ValueChanged(value);
}

void StatusForm::Finish() {
    Advance(maximum);
    if (--depth == 0) {
        SetVisible(false);
        return;
    }
    const Job outer = waiting.back();
    waiting.pop_back();
    Take(outer);
}

void StatusForm::SSCommand1_Click() {
    StatusCancel = true;
    SetVisible(false);
}

} // namespace lanterra
