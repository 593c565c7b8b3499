#include "project/project_dialog.h"

#include "support/file_names.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int longestShown = 40; ///< a longer path is shortened
constexpr int shortenedTo = 50;

} // namespace

ProjectDialog::ProjectDialog(ProjectPath &projectPath, ProjectFiles &projectFiles, RecentFile &recentFile,
                             CheckBox &loadLastProject, Dialogs &fileDialogs)
    : path(projectPath), files(projectFiles), recent(recentFile), settingsBox(loadLastProject),
      dialogs(fileDialogs) {
    SetVisible(false);
    AddToForm(*this, Option1, u"Option1"_s);
    AddToForm(*this, Option2, u"Option2"_s);
    AddToForm(*this, List1, u"List1"_s);
    AddToForm(*this, LoadLastProject, u"LoadLastProject"_s);
    JoinAsOptions(Option1, Option2);
}

void ProjectDialog::Load() {
    recent.Load();
    List1.SetItems({u"More Files..."_s});
    Option1.SetValue(1);
    for (int n = 1; n <= RecentFile::limit; ++n) {
        const QString file = recent.File(n);
        if (file.isEmpty())
            continue;
        List1.AddItem(file.size() > longestShown ? ShortenPath(file, shortenedTo, QDir::separator()) : file);
        Option2.SetValue(1);
    }
    LoadLastProject.SetValue(settingsBox.Value());
    SetVisible(true);
}

void ProjectDialog::cmdOK_Click() {
    settingsBox.SetValue(LoadLastProject.Value());
    if (Option2.Checked() && List1.ListIndex() == 0) {
        OpenMoreFiles();
        return;
    }
    if (List1.ListIndex() > 0 && !List1.Text().isEmpty())
        path.Base = recent.File(List1.ListIndex());
    if (Option1.Checked() || !FileExists(path.Base))
        path.Base.clear();
    SetVisible(false);
}

// Cancel leaves the dialog up, without a project.
void ProjectDialog::OpenMoreFiles() {
    path.Base = dialogs.OpenFile(files.OpenDialog()).value_or(QString());
    if (!FileExists(path.Base))
        return;
    recent.Add(path.Base);
    SetVisible(false);
}

void ProjectDialog::List1_DblClick() {
    settingsBox.SetValue(LoadLastProject.Value());
    if (List1.ListIndex() == 0) {
        OpenMoreFiles();
        return;
    }
    const QString file = recent.File(List1.ListIndex());
    if (FileExists(file)) {
        path.Base = file;
        recent.Add(file);
        SetVisible(false);
    } else if (!file.isEmpty()) {
        dialogs.Show({u"File '%1' did not exist.\r\n\r\n"_s.arg(file), u"Error"_s, BoxIcon::Critical});
    }
}

} // namespace lanterra
