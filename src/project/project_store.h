#pragma once

#include "ports/dialogs.h"
#include "ports/event_queue.h"
#include "project/project.h"
#include "project/status_form.h"

#include <QStringList>

namespace lanterra {

// The file format of a project's own data: what stands in which row of table "Project" and in the field
// "Selected" of table "Data".
//
//   row 1            the record, all fields
//   rows 2, 3, ...   only for several URLs: txtURL, txtTitle, txtDesc and txtKey1 to txtKey6
//                    of the slots 0, 1, ... of the table, their other fields empty
//
// The rows of several URLs are written behind the record each time, and the first save in that mode over a
// table of one row adds slot 0 twice, which moves every later slot along by one at the next load. Old
// projects depend on this form, so it stays.

/// What came of storing the record.
struct StoreResult {
    bool stored = false; ///< the rows reached the file
    QStringList refused; ///< fields whose text is too long; their old values stay
    QString failure;     ///< why nothing was stored, one sentence
};

/// Cuts the boxes that are cut on saving and writes the record into the file that Data2 is bound to.
StoreResult SaveProjectFields(Project &project);

/// Deletes the rows of several URLs, which a save of a project that has one URL by now leaves behind. False
/// if one could not be deleted.
bool DeleteUrlRows(Project &project);

/// Reads the record from the file that Data2 is bound to. A file without sites gets the box "Error! Invalid
/// project file. " and one without a record is passed over; the fields then stay. Yields.
void LoadProjectFields(Project &project, Dialogs &dialogs, EventQueue &queue);

/// Whether the sites that the file begins with are those of List1, so that a mark goes to the site that it
/// belongs to.
bool HoldsListedSites(Project &project);

/// Writes the marks of List1 into table "Data", with progress and Cancel on `status`. Rows that were not
/// reached keep their old value. Yields after each row, and goes on when the program is closing. False if the
/// rows could not be stored.
bool SaveSiteSelection(Project &project, StatusForm &status, EventQueue &queue);

} // namespace lanterra
