#pragma once

#include "ports/forms.h"

#include <QMenu>
#include <functional>
#include <map>

namespace lanterra {

/// Opens the forms and popup menus that were made known to it.
class WidgetForms final : public Forms {
public:
    /// What shows a form and returns when it is closed.
    void SetForm(ModalForm form, std::function<void()> showForm) { forms[form] = std::move(showForm); }
    /// The menu must outlive this.
    void SetMenu(PopupMenu menu, QMenu &menuWidget) { menus[menu] = &menuWidget; }
    /// The button that opens the menu. It must outlive this.
    void SetMenuButton(PopupMenu menu, const QWidget &button) { buttons[menu] = &button; }

    /// A form or menu that was not made known is passed over.
    void ShowModal(ModalForm form) override;

    /// At the pointer; below the menu's button if the pointer is elsewhere, as after a key press.
    void PopUp(PopupMenu menu) override;

private:
    std::map<ModalForm, std::function<void()>> forms;
    std::map<PopupMenu, QMenu *> menus;
    std::map<PopupMenu, const QWidget *> buttons;
};

} // namespace lanterra
