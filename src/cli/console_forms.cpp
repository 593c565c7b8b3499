#include "cli/console_forms.h"

namespace lanterra {

void ConsoleForms::ShowModal(ModalForm) {}

void ConsoleForms::PopUp(PopupMenu menu) {
    if (!run)
        return;
    if (menu == PopupMenu::Submit)
        (run->*submitEntry)();
    else if (menu == PopupMenu::Cancel2)
        run->mnuCancelEntire_Click();
}

} // namespace lanterra
