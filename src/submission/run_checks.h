#pragma once

#include "ports/dialogs.h"
#include "project/main_frame.h"
#include "submission/request_collector.h"

namespace lanterra {

/// What must hold before a run. The first thing that doesn't is told in a box, and the pane where it can be
/// mended is shown.
class RunChecks {
public:
    /// All must outlive this.
    RunChecks(Project &openProject, MainFrame &mainFrame, RequestCollector &requestCollector,
              Dialogs &messageDialogs)
        : project(openProject), frame(mainFrame), collector(requestCollector), dialogs(messageDialogs) {}

    /// Whether every required field is filled in and every selected directory has a category. Gives an empty
    /// fax number that of the telephone first. Yields.
    bool Pass();

    /// The part of it that the other modes want: the required fields alone. Yields while its box is up.
    bool FieldsPass();

private:
    bool FieldsAreFilled();
    bool CategoriesAreChosen();
    void Refuse(const QString &message, Pane pane);

    Project &project;
    MainFrame &frame;
    RequestCollector &collector;
    Dialogs &dialogs;
};

} // namespace lanterra
