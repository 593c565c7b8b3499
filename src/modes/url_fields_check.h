#pragma once

#include "ports/dialogs.h"
#include "ports/event_queue.h"
#include "project/main_frame.h"
#include "project/project_record.h"

namespace lanterra {

/// The check before a job over several URLs: each must have all its texts, unless all share those of slot 0.
class UrlFieldsCheck {
public:
    /// All must outlive this.
    UrlFieldsCheck(ProjectRecord &projectRecord, MainFrame &mainFrame, Dialogs &messageDialogs,
                   EventQueue &eventQueue)
        : record(projectRecord), frame(mainFrame), dialogs(messageDialogs), queue(eventQueue) {}

    /// False, with a box and the slot on show, if one lacks a text. A gap in slot 0 alone passes here: the
    /// checks of its run find it. Yields after each slot and while its box is up.
    bool Pass();

private:
    int LastSlot() const;
    bool HasGap(int slot) const;

    ProjectRecord &record;
    MainFrame &frame;
    Dialogs &dialogs;
    EventQueue &queue;
};

} // namespace lanterra
