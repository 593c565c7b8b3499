#pragma once

#include "controls/button.h"
#include "controls/label.h"
#include "ports/clock.h"
#include "ports/dialogs.h"
#include "ports/event_queue.h"
#include "project/main_frame.h"
#include "project/project.h"
#include "reports/run_result.h"
#include "reports/session_grid.h"

namespace lanterra {

/// The pane FraSta: the sessions of a project, one row of table "Stats" each, and totals over them.
class Statistics : public QObject {
    Q_OBJECT

public:
    /// All must outlive this.
    Statistics(Project &openProject, MainFrame &mainFrame, Dialogs &messageDialogs, EventQueue &eventQueue,
               const Clock &systemClock);

    /// Adds a row for the run that has just ended. False if it could not be stored; Data3 tells why.
    bool AppendSessionRow(const RunResult &result);

    /// Fills the labels and the grid and shows the pane. Yields after each row.
    void cmdOrder_Click();

    /// "Clear": asks, and deletes all rows on Yes; a box tells if that failed. The labels keep the old totals
    /// until the pane is opened again. Yields while it asks.
    void Command10_Click();

    Label Label42; ///< number of sessions
    Label Label44; ///< successful registrations of all sessions
    Label Label45; ///< failed ones
    Label Label46; ///< all registrations
    Label Label47; ///< date of the last run; keeps its text while there is none
    Button Command10;
    SessionGrid DBGrid1;

private:
    bool AddRow(const RunResult &result);
    void ShowTotals();
    bool DeleteAllRows();
    void TellUnlessDeleted(bool deleted);

    Project &project;
    MainFrame &frame;
    Dialogs &dialogs;
    EventQueue &queue;
    const Clock &clock;
};

} // namespace lanterra
