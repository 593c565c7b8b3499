#pragma once

#include "ports/forms.h"

#include <functional>
#include <map>
#include <vector>

namespace lanterra {

/// Forms and menus that a test works by a function each; one without a function is dismissed.
class FakeForms final : public Forms {
public:
    void ShowModal(ModalForm form) override {
        shown.push_back(form);
        if (const auto found = onForm.find(form); found != onForm.end())
            found->second();
    }
    void PopUp(PopupMenu menu) override {
        poppedUp.push_back(menu);
        if (const auto found = onMenu.find(menu); found != onMenu.end())
            found->second();
    }

    std::map<ModalForm, std::function<void()>> onForm;
    std::map<PopupMenu, std::function<void()>> onMenu;
    std::vector<ModalForm> shown;
    std::vector<PopupMenu> poppedUp;
};

} // namespace lanterra
