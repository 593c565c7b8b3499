#include "window/form_dialog.h"

#include <QLayout>
#include <algorithm>

namespace lanterra {

void FormDialog::ExecWhileVisible() {
    if (!modelVisible)
        return;
    FitHeight();
    exec();
}

// A dialog takes the height of its texts on one line each unless it is told what wrapping them needs.
void FormDialog::FitHeight() {
    if (layout() && layout()->hasHeightForWidth())
        resize(width(), std::max(height(), layout()->totalMinimumHeightForWidth(width())));
}

} // namespace lanterra
