#include "window/form_dialog.h"

namespace lanterra {

void FormDialog::ExecWhileVisible() {
    if (modelVisible)
        exec();
}

} // namespace lanterra
