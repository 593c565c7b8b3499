#pragma once

#include "ports/event_queue.h"
#include "project/project_files.h"
#include "submission/request_headers.h"
#include "submission/request_template.h"

#include <vector>

namespace lanterra {

/// Reads the selected sites of the open project and makes the request of each.
class RequestCollector {
public:
    /// All must outlive this.
    RequestCollector(Project &openProject, ProjectFiles &projectFiles, StatusForm &statusForm,
                     EventQueue &eventQueue)
        : project(openProject), files(projectFiles), status(statusForm), queue(eventQueue) {}

    /// Saves the project, which asks for a file if it has none, and fills `requests`: row i for entry i of
    /// List1, empty for a site that isn't selected and for those behind a Cancel. Progress and Cancel on
    /// frmStatus. Yields after each record. False if the user cancelled.
    bool CollectSubmissionData();

    /// The request of the site in this row of table "Data"; empty if there is no such row. Leaves Data2 on
    /// that row, and Data1 on the project's file if the template asks for a category.
    SiteRequest RequestOfRow(int row, const RequestTemplate &values);

    /// The text of one request: the site's template expanded, in place and as the result.
    QString data_parsiraj_query(QString &query, const QString &name, const RequestTemplate &values);

    /// The encoded category chosen for the site; empty if it has none or isn't in table "Categories". Leaves
    /// Data1 on the project's file.
    QString data_parsiraj_query_kategorije(const QString &name);

    /// The name of the first directory that is selected and has no category, and makes it current in List2;
    /// empty if all have one. `selectedNames` holds the names of all selected sites; a directory whose name
    /// is part of another selected site's counts as selected. Yields after each record.
    QString data_proveri_selektovane_kategorije(const QString &selectedNames);

    std::vector<SiteRequest> requests;

    // Two encoded values of the last CollectSubmissionData, for the page of ready-filled forms. Empty until
    // the first one, and not renewed when the fields change.
    QString txtEmailText;
    QString AllKeywords;

private:
    bool CollectRows(const RequestTemplate &values);

    Project &project;
    ProjectFiles &files;
    StatusForm &status;
    EventQueue &queue;
};

} // namespace lanterra
