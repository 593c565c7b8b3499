#include "project/project_files.h"

#include "project/project_saving.h"
#include "support/file_names.h"

#include <QDir>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString projectFilter = u"Lanterra files (*.rts)|*.rts"_s;

} // namespace

ProjectFiles::ProjectFiles(const Parts &theParts) : parts(theParts) {
    AddToForm(*this, mnuFileNew, u"mnuFileNew"_s);
    AddToForm(*this, mnuFileOpen, u"mnuFileOpen"_s);
    AddToForm(*this, mnuFileSaveAs, u"mnuFileSaveAs"_s);
    for (std::size_t item = 0; item < mnuFileMRU.size(); ++item)
        AddToForm(*this, mnuFileMRU[item], u"mnuFileMRU%1"_s.arg(item + 1));
    connect(&parts.recent, &RecentFile::Changed, this, &ProjectFiles::ShowRecentFiles);
    ShowRecentFiles({});
}

void ProjectFiles::ShowRecentFiles(const QStringList &names) {
    for (std::size_t item = 0; item < mnuFileMRU.size(); ++item) {
        mnuFileMRU[item].SetCaption(names.value(static_cast<qsizetype>(item)));
        mnuFileMRU[item].SetVisible(!mnuFileMRU[item].Caption().isEmpty());
    }
}

bool ProjectFiles::Accepts(const Control &entry) const { return entry.Enabled() && !busy; }

void ProjectFiles::SetRunActive(bool active) {
    runActive = active;
    LockEntries();
}

void ProjectFiles::SetTopEnginesActive(bool active) {
    topEnginesActive = active;
    LockEntries();
}

void ProjectFiles::LockEntries() {
    const bool enabled = !runActive && !topEnginesActive;
    mnuFileNew.SetEnabled(enabled);
    mnuFileOpen.SetEnabled(enabled);
    mnuFileSaveAs.SetEnabled(enabled);
    for (Control &item : mnuFileMRU)
        item.SetEnabled(enabled);
}

void ProjectFiles::mnuFileNew_Click() {
    if (!Accepts(mnuFileNew))
        return;
    ProjectPath &path = parts.project.path;
    const QString oldBase = path.Base;
    path.Base.clear();
    ClearForNewProject();
    // After a cancelled dialog the old project comes back as it was stored; what was typed since its last
    // save is gone with the fields that were emptied above. The new one is loaded so that the lists are those
    // of its file.
    if (!SaveAs())
        path.Base = oldBase;
    LoadProject();
}

void ProjectFiles::ClearForNewProject() {
    ProjectRecord &record = parts.project.record;
    // The address, the "Adult web site" mark and the subject are not among the boxes that are emptied: the
    // address is reset below, the other two carry over from the old project.
    for (TextBox *box : record.ContactBoxes())
        box->SetText(QString());
    record.txtTitle.SetText(QString());
    record.txtDesc.SetText(QString());
    for (TextBox &box : record.txtKey)
        box.SetText(QString());
    record.txtLimit.SetText(u"45"_s);
    parts.project.lists.List1.SetAllSelected(false);
    parts.project.database.Unbind();
    record.ResetUrls();
}

FileDialog ProjectFiles::OpenDialog() const {
    parts.project.path.CreateProjectsFolder();
    return {projectFilter, parts.project.path.ProjectsFolder(), QString(), u"rts"_s};
}

void ProjectFiles::mnuFileOpen_Click() {
    if (!Accepts(mnuFileOpen))
        return;
    if (const std::optional<QString> file = parts.dialogs.OpenFile(OpenDialog()))
        OpenProject(*file);
}

void ProjectFiles::OpenProject(const QString &file) {
    parts.project.path.Base = file;
    parts.project.record.ResetUrls();
    parts.project.path.ComputeStatsFilePath();
    LoadProject();
}

StoreResult ProjectFiles::MakeFromMaster(const QString &file) {
    ProjectPath &path = parts.project.path;
    path.Base = file;
    path.SplitProjectPath();
    path.ComputeStatsFilePath();
    // The lists of another project would be stored into the copy.
    parts.project.lists.List1.Clear();
    return SaveProject(path.MasterFile());
}

StoreResult ProjectFiles::CreateProject(const QString &file) {
    ClearForNewProject();
    StoreResult copied = MakeFromMaster(file);
    if (!copied.stored)
        return copied;
    LoadProject();
    return SaveProject(QString());
}

void ProjectFiles::mnuFileSave_Click() {
    if (parts.project.path.Base.isEmpty())
        SaveAs();
    else
        SaveProject(QString());
}

void ProjectFiles::mnuFileSaveAs_Click() {
    if (Accepts(mnuFileSaveAs))
        SaveAs();
}

void ProjectFiles::mnuFileMRU_Click(int item) {
    const Label &entry = mnuFileMRU.at(static_cast<std::size_t>(item - 1));
    const QString file = entry.Caption();
    if (file.isEmpty() || !Accepts(entry))
        return;
    // A file that is gone becomes the open project's path all the same; nothing creates it. The several-URL
    // mode stays as it was if the file holds no record.
    parts.project.path.Base = file;
    if (FileExists(file))
        LoadProject();
}

// False, with the path as it was, if the user cancelled the dialog or nothing could be stored.
bool ProjectFiles::SaveAs() {
    ProjectPath &path = parts.project.path;
    const QString source = SourceOfCopy(parts.project);
    path.CreateProjectsFolder();
    const QString proposed =
        path.Base.isEmpty() ? QString() : GetFileName(path.Base, QDir::separator(), false);
    const std::optional<QString> chosen =
        parts.dialogs.SaveFile({projectFilter, path.ProjectsFolder(), proposed, QString()});
    if (!chosen)
        return false;
    const ProjectPath oldPath = path;
    path.Base = *chosen;
    path.ComputeStatsFilePath();
    path.SplitProjectPath();
    if (!SaveProject(source).stored) {
        path = oldPath;
        parts.project.database.BindProject();
        return false;
    }
    parts.recent.Add(path.Base);
    parts.frame.SetProjectName(path.ProjectName);
    parts.frame.ShowPane(Pane::FrameDescription);
    return true;
}

StoreResult ProjectFiles::SaveProject(const QString &source) {
    StoreResult result;
    {
        const QScopedValueRollback<bool> saving(busy, true);
        // Until a load is through, the boxes hold the data of another project.
        if (parts.project.record.LoadingProject)
            result.failure = u"A project is being loaded."_s;
        else
            result = StoreProject(parts.project, source, parts.status, parts.queue);
    }
    parts.frame.Notice.SetCaption(result.stored ? QString()
                                                : u"The project could not be saved: "_s + result.failure);
    return result;
}

void ProjectFiles::LoadProject() {
    Project &project = parts.project;
    ProjectRecord &record = project.record;
    if (project.path.Base.isEmpty() || busy)
        return;
    QScopedValueRollback<bool> loading(busy, true);
    record.LoadingProject = true;
    record.multiUrlTable.EraseUrls();
    project.database.Unbind();
    project.database.BindMaster();
    project.database.BindProject();
    if (ReadSiteLists(project, import)) {
        // This load never ends, so that nothing is opened or stored behind it.
        loading.commit();
        ended = true;
        emit ProgramEnds();
        return;
    }
    LoadProjectFields(project, parts.dialogs, parts.queue);
    ShowLoadedUrls();
    project.lists.KeepSiteNames();
    project.path.SplitProjectPath();
    parts.frame.SetProjectName(project.path.ProjectName);
    record.LoadingProject = false;
    parts.frame.ShowPane(Pane::FrameDescription);
    if (FileExists(project.path.Base))
        parts.recent.Add(project.path.Base);
    parts.frame.SetPointer(MousePointer::Default);
}

// Counts the addresses as the form for several URLs does: ten characters or fewer are none, such as "http://"
// in an emptied box. The slots stay where they are, so behind a gap the last ones fall out of the count.
void ProjectFiles::ShowLoadedUrls() {
    ProjectRecord &record = parts.project.record;
    record.HScroll1.SetValue(0);
    record.chkMultiSameDesc.SetEnabled(record.MultiUrlMode());
    if (record.MultiUrlMode()) {
        record.ShowSlot(0);
        record.MultiUrlUpper = record.multiUrlTable.UrlCount() - 1;
    }
    record.HScroll1.SetMaximum(record.MultiUrlUpper);
}

void ProjectFiles::AskSaveProject() {
    parts.windowSettings.StoreWindowSettings();
    if (!parts.project.path.Base.isEmpty())
        return;
    const MessageBox question{u"Save current project ?"_s, u"Zephyrine Lanterra"_s, BoxIcon::Question,
                              BoxButtons::YesNo, BoxAnswer::No};
    if (parts.dialogs.Show(question) == BoxAnswer::Yes)
        SaveAs();
}

} // namespace lanterra
