#pragma once

#include "ports/dialogs.h"
#include "ports/event_queue.h"
#include "project/project.h"

namespace lanterra {

/// Chooses a category for each directory. A choice stands in the project's file at once, whether the project
/// is saved or not.
class CategorySelection {
public:
    /// All must outlive this.
    CategorySelection(Project &openProject, Dialogs &messageDialogs, EventQueue &eventQueue)
        : project(openProject), dialogs(messageDialogs), queue(eventQueue) {}

    /// Shows the categories of the directory that is current in List2, with its choice as the current one.
    /// Nothing happens for a directory that the file doesn't hold.
    void List2_Click();

    /// ChooseCategory, unless none is current. Tells if it could not be stored.
    void List3_Click();

    /// Stores the category that is current in List3 for that directory. False if none is current or it could
    /// not be stored.
    bool ChooseCategory();

    /// "Select by keyword": SelectByKeyword with the text of txttrazim, then shows the new choice. Tells if a
    /// choice could not be stored. Return in that box presses it.
    void Command13_Click();
    void txttrazim_ReturnPressed() { Command13_Click(); }

    /// Gives every directory the first category that holds the keyword, ignoring case. A directory without a
    /// match keeps its choice, or takes its default if it has none. The default itself is not searched, and
    /// an empty keyword matches the first category offered. Yields after each directory. False if a choice
    /// could not be stored.
    bool SelectByKeyword(const QString &keyword);

private:
    bool FindDirectory(const QString &name);
    void TellNotStored();

    Project &project;
    Dialogs &dialogs;
    EventQueue &queue;
};

/// The categories of the row that the control stands on: element 0 is the default and is not offered.
QStringList CategoriesOfRow(const DataControl &row);

} // namespace lanterra
