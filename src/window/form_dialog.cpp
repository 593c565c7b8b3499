#include "window/form_dialog.h"

#include <QLayout>
#include <QScreen>
#include <algorithm>

namespace lanterra {

void FormDialog::ExecWhileVisible() {
    if (!modelVisible)
        return;
    FitHeight();
    FindPlace();
    exec();
}

// It stands in the middle of the main window; at the start, before that one is on the screen, of the screen.
void FormDialog::FindPlace() {
    const bool early = parentWidget() && !parentWidget()->isVisible();
    if (early)
        move(screen()->availableGeometry().center() - rect().center());
    else
        setAttribute(Qt::WA_Moved, false);
}

// A dialog takes the height of its texts on one line each unless it is told what wrapping them needs.
void FormDialog::FitHeight() {
    if (layout() && layout()->hasHeightForWidth())
        resize(width(), std::max(height(), layout()->totalMinimumHeightForWidth(width())));
}

} // namespace lanterra
