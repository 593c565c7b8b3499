#pragma once

#include "ports/dialogs.h"
#include "project/project_record.h"

namespace lanterra {

/// What happens while a person works in the boxes of a project: the focus, the Return key, and the checks on
/// leaving a box.
class EntryHandlers {
public:
    /// Both must outlive this.
    EntryHandlers(ProjectRecord &projectRecord, Dialogs &messageDialogs)
        : record(projectRecord), dialogs(messageDialogs) {}

    /// Selects the whole text of a box that got the focus. txtLimit and txttrazim are left as they are.
    void GotFocus(TextBox &box) const;

    /// Moves the focus on from a box in which Return was pressed. False for a box that doesn't answer to it.
    bool ReturnPressed(const TextBox &box);

    /// Puts "http://" before an address without a scheme. The test minds the case and knows only two schemes,
    /// so "HTTP://..." and "ftp://..." get the prefix, too.
    void txtURL_LostFocus();

    /// Warn of a text, in a box that blocks while events go on, of more than 255 characters. It stays in the
    /// box and is cut when the project is saved.
    void txtTitle_LostFocus();
    void txtDesc_LostFocus();

private:
    void WarnIfTooLong(const TextBox &box, const QString &warning);
    TextBox *Next(const TextBox &box);

    ProjectRecord &record;
    Dialogs &dialogs;
};

} // namespace lanterra
