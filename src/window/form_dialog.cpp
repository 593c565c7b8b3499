#include "window/form_dialog.h"

#include "window/screen_room.h"

#include <QLayout>
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
        setAttribute(Qt::WA_Moved, false); // or it would stay where it once stood
}

// A dialog takes the height of its texts on one line each unless it is told what wrapping them needs.
void FormDialog::FitHeight() {
    int needed = height();
    if (layout() && layout()->hasHeightForWidth())
        needed = std::max(needed, layout()->totalMinimumHeightForWidth(width()));
    const QSize room = RoomOnScreen(*this);
    if (layout() && needed > room.height())
        layout()->setSizeConstraint(QLayout::SetNoConstraint); // the largest boxes give way
    resize(QSize(width(), needed).boundedTo(room));
}

} // namespace lanterra
