#include "project/start_project.h"

#include "support/file_names.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const InputBox nameQuestion{u"(A project comprises all the data concerning a web page including the web page "
                            u"details and all the site "
                            u"categories selected. Each project covers a specific statistics and you will "
                            u"find a complete review of each "
                            u"registration therein)\r\nPLEASE ENTER YOUR PROJECT NAME: "_s,
                            u"Create a new project"_s, u"Project1"_s};

} // namespace

void StartProject::ChooseStartProject(const QString &commandLine) {
    if (FileExists(commandLine))
        project.path.Base = commandLine;
    else
        forms.ShowModal(ModalForm::ProjectDialog);
    if (!project.path.Base.isEmpty()) {
        files.LoadProject();
        return;
    }
    while (!queue.Closing()) {
        const QString name = dialogs.Ask(nameQuestion);
        if (queue.Closing() || CreateProject(name))
            return;
    }
}

bool StartProject::CreateProject(const QString &typedName) {
    const QString name = RemoveChars(typedName).trimmed();
    if (name.isEmpty() || !CanBeFileName(name)) {
        dialogs.Show({u"You must enter your new project name "_s, u"Error"_s, BoxIcon::Critical});
        return false;
    }
    ProjectPath &path = project.path;
    const QString file = path.ProjectsFolder() + name + u".rts"_s;
    const MessageBox question{u"A project of this name exists. Replace it ?"_s, u"Zephyrine Lanterra"_s,
                              BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No};
    if (FileExists(file) && dialogs.Show(question) != BoxAnswer::Yes)
        return false;
    path.CreateProjectsFolder();
    const StoreResult made = files.MakeFromMaster(file);
    if (made.stored)
        return true;
    path.Base.clear();
    MessageBox refusal{u"The project could not be created: "_s + made.failure, u"Error"_s, BoxIcon::Critical};
    refusal.detail = u"A new project is a copy of %1, kept as %2."_s.arg(path.MasterFile(), file);
    dialogs.Show(refusal);
    return false;
}

} // namespace lanterra
