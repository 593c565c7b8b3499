#include "project/project_files.h"

#include "support/file_names.h"
#include "support/whole_file.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString projectFilter = u"Lanterra files (*.rts)|*.rts"_s;

} // namespace

ProjectFiles::ProjectFiles(const Parts &theParts) : parts(theParts) {}

void ProjectFiles::SetRunActive(bool active) {
    mnuFileNew.SetEnabled(!active);
    mnuFileOpen.SetEnabled(!active);
    mnuFileSaveAs.SetEnabled(!active);
    for (Control &item : mnuFileMRU)
        item.SetEnabled(!active);
}

void ProjectFiles::mnuFileNew_Click() {
    if (!mnuFileNew.Enabled())
        return;
    ProjectPath &path = parts.project.path;
    const QString oldBase = path.Base;
    path.Base.clear();
    ClearForNewProject();
    if (SaveAs()) {
        parts.frame.ShowPane(Pane::FrameDescription);
        return;
    }
    // The old project comes back as it was stored; what was typed since its last save is gone with the fields
    // that were emptied above.
    path.Base = oldBase;
    LoadProject();
}

void ProjectFiles::ClearForNewProject() {
    ProjectRecord &record = parts.project.record;
    // The address, the "Adult web site" mark and the subject are not among the boxes that are emptied: the address
    // is reset below, the other two carry over from the old project.
    for (TextBox *box : {&record.txtEmail, &record.txtName1, &record.txtName2, &record.txtCompany,
                         &record.txtStreet, &record.txtState, &record.txtCountry, &record.txtCity,
                         &record.txtZip, &record.txtPhone, &record.txtFax, &record.txtTitle, &record.txtDesc})
        box->SetText(QString());
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
    if (!mnuFileOpen.Enabled())
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

StoreResult ProjectFiles::CreateProject(const QString &file) {
    ProjectPath &path = parts.project.path;
    path.Base = file;
    ClearForNewProject();
    path.SplitProjectPath();
    path.ComputeStatsFilePath();
    // The lists of another project would be stored into the copy.
    parts.project.lists.List1.Clear();
    StoreResult copied = SaveProject(path.MasterFile());
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
    if (mnuFileSaveAs.Enabled())
        SaveAs();
}

void ProjectFiles::mnuFileMRU_Click(int item) {
    const QString file = parts.recent.File(item);
    if (file.isEmpty() || !mnuFileMRU.at(static_cast<std::size_t>(item - 1)).Enabled())
        return;
    // A file that is gone becomes the open project's path all the same; nothing creates it.
    parts.project.path.Base = file;
    if (FileExists(file))
        LoadProject();
}

// False if the user cancelled the dialog.
bool ProjectFiles::SaveAs() {
    ProjectPath &path = parts.project.path;
    const QString source = path.Base.isEmpty() ? path.MasterFile() : path.Base;
    path.CreateProjectsFolder();
    const QString proposed = path.Base.isEmpty() ? QString() : GetFileName(path.Base, QDir::separator(), false);
    const std::optional<QString> chosen =
        parts.dialogs.SaveFile({projectFilter, path.ProjectsFolder(), proposed, QString()});
    if (!chosen)
        return false;
    path.Base = *chosen;
    path.ComputeStatsFilePath();
    path.SplitProjectPath();
    SaveProject(source);
    if (FileExists(path.Base))
        parts.recent.Add(path.Base);
    parts.frame.SetProjectName(path.ProjectName);
    parts.frame.ShowPane(Pane::FrameDescription);
    return true;
}

StoreResult ProjectFiles::SaveProject(const QString &source) {
    Project &project = parts.project;
    project.database.Unbind();
    StoreResult result;
    if (!source.isEmpty() && !CopyWholeFile(source, project.path.Base) && !IsSameFile(source, project.path.Base))
        result.failure = u"The file could not be written."_s;
    const bool bound = project.database.BindProject();
    project.database.BindMaster();
    if (project.lists.List1.ListCount() == 0) {
        result.stored = bound && result.failure.isEmpty();
        return result;
    }
    if (result.failure.isEmpty())
        result = SaveProjectFields(project);
    if (!SaveSiteSelection(project, parts.status, parts.queue) && result.stored) {
        result.stored = false;
        result.failure = project.database.Data2.Failure();
    }
    return result;
}

void ProjectFiles::LoadProject() {
    Project &project = parts.project;
    ProjectRecord &record = project.record;
    if (project.path.Base.isEmpty())
        return;
    record.LoadingProject = true;
    record.multiUrlTable.EraseUrls();
    project.database.Unbind();
    project.database.BindMaster();
    project.database.BindProject();
    ReadSiteLists(project, import);
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

// An address of ten characters or fewer ("http://a.b") is not counted, as nowhere in the lists of addresses.
void ProjectFiles::ShowLoadedUrls() {
    ProjectRecord &record = parts.project.record;
    record.HScroll1.SetValue(0);
    record.chkMultiSameDesc.SetEnabled(record.MultiUrlMode());
    if (record.MultiUrlMode()) {
        record.ShowSlot(0);
        int urls = 0;
        for (int slot = 0; slot < MultiUrlTable::slotCount; ++slot)
            urls += record.multiUrlTable.Cell(slot, MultiUrlTable::urlColumn).size() > 10 ? 1 : 0;
        record.MultiUrlUpper = urls - 1;
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
