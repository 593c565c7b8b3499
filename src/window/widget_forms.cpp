#include "window/widget_forms.h"

#include <QCursor>

namespace lanterra {

namespace {

QPoint PopUpPlace(const QWidget *button) {
    const QPoint pointer = QCursor::pos();
    if (!button || button->rect().contains(button->mapFromGlobal(pointer)))
        return pointer;
    return button->mapToGlobal(button->rect().bottomLeft());
}

} // namespace

void WidgetForms::ShowModal(ModalForm form) {
    if (const auto found = forms.find(form); found != forms.end())
        found->second();
}

void WidgetForms::PopUp(PopupMenu menu) {
    const auto found = menus.find(menu);
    if (found == menus.end())
        return;
    QPoint place = PopUpPlace(buttons[menu]);
    if (menu == PopupMenu::Engines)
        place.rx() -= found->second->sizeHint().width() / 2;
    found->second->exec(place);
}

} // namespace lanterra
