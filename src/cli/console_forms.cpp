#include "cli/console_forms.h"

#include "submission/submission_run.h"

namespace lanterra {

void ConsoleForms::ShowModal(ModalForm) {}

void ConsoleForms::PopUp(PopupMenu menu) {
    if (!run)
        return;
    if (menu == PopupMenu::Submit)
        run->mnuAuto_Click();
    else if (menu == PopupMenu::Cancel2)
        run->mnuCancelEntire_Click();
}

} // namespace lanterra
