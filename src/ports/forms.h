#pragma once

namespace lanterra {

/// The forms that one part of the program opens and another one draws.
enum class ModalForm { ProjectDialog, Settings, WebBrowser, Multi, Welcome, Report, TechSupp };

/// The popup menus that buttons open. A channel's popup is told by its own entry.
enum class PopupMenu { Submit, Cancel2, Engines, Status, Status2, Status3, Status4, Status5 };

/// Opens forms and popup menus. What the user does there reaches the program through the handlers of the
/// form's controls and of the menu's entries, which run before the call returns.
class Forms {
public:
    virtual ~Forms() = default;

    /// Shows the form and returns when it is closed. Events go on meanwhile.
    virtual void ShowModal(ModalForm form) = 0;

    /// Shows the menu at the pointer and returns when an entry was taken or the menu dismissed.
    virtual void PopUp(PopupMenu menu) = 0;
};

} // namespace lanterra
