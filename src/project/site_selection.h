#pragma once

#include "ports/event_queue.h"
#include "project/project.h"

namespace lanterra {

/// Changes the marks of List1 in bulk. Every command works only while List1 is enabled, so never during a
/// run. The filters replace the selection and don't narrow it; they read table "Data" row by row and yield
/// after each.
class SiteSelection {
public:
    /// Both must outlive this.
    SiteSelection(Project &openProject, EventQueue &eventQueue) : project(openProject), queue(eventQueue) {}

    void Command3_Click();  ///< "Clear"
    void Command4_Click();  ///< "Select All"
    void Command6_Click();  ///< "Invert"
    void mnuEngDir_Click(); ///< directories
    void mnuEngEng_Click(); ///< search engines
    void mnuEngLnk_Click(); ///< link lists
    void mnuEngReg_Click(); ///< sites with a success in the statistics
    void mnuEngNot_Click(); ///< sites without one

    /// Marks the sites whose kind holds the word, ignoring case.
    void SelectByType(const QString &word);

    /// Marks the sites that the statistics name as successful ("reg", in either case), or for any other word
    /// those that they don't. The names are looked for in the joined text of all sessions, so a site whose
    /// name is part of another's counts as registered with it.
    void SelectByRegistration(const QString &word);

private:
    template <class Test>
    void MarkRows(const Test &test);
    QString JoinedSuccesses();

    Project &project;
    EventQueue &queue;
};

} // namespace lanterra
