#include "project/project_dialog.h"
#include "tests/fakes/program_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class StartProjectTest : public ProgramFixture {
protected:
    StartProjectTest() {
        GivenMaster(SiteDatabaseBuilder().Site(u"Alta"_s));
        MakeDialog();
    }
    void MakeDialog() {
        dialog = std::make_unique<ProjectDialog>(Path(), program->files, program->recentFile,
                                                 program->frmSettings.LoadLastProject, dialogs);
    }
    QString InProjects(const QString &file) const { return home.filePath(u"Projects/"_s + file); }
    ProjectPath &Path() { return program->project.path; }
    StartProject &Start() { return program->startProject; }

    std::unique_ptr<ProjectDialog> dialog;
};

TEST_F(StartProjectTest, AsksForANameUntilOneIsGiven) {
    dialogs.lines = {QString(), u"  "_s, u".."_s, u"?:/"_s, u"My: shop"_s};
    Start().ChooseStartProject(QString());
    EXPECT_EQ(forms.shown, std::vector{ModalForm::ProjectDialog});
    EXPECT_EQ(Path().Base, InProjects(u"My shop.rts"_s));
    EXPECT_TRUE(QFile::exists(Path().Base));
    ASSERT_EQ(dialogs.boxes.size(), 4U);
    EXPECT_EQ(dialogs.boxes[0].text, u"You must enter your new project name "_s);
    EXPECT_EQ(dialogs.inputBoxes[0].title, u"Create a new project"_s);
    EXPECT_EQ(dialogs.inputBoxes[0].defaultText, u"Project1"_s);
    EXPECT_EQ(program->project.lists.List1.ListCount(), 0); // filled by the load that follows
    program->files.LoadProject();
    EXPECT_EQ(program->project.lists.List1.ListCount(), 1);
}

TEST_F(StartProjectTest, TheEndOfTheProgramEndsTheAskingWithoutABox) {
    dialogs.lines = {QString()};
    dialogs.onAsk = [this] { queue.Close(); };
    Start().ChooseStartProject(QString());
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(StartProjectTest, DoesNotReplaceAProjectWithoutAskingAndTakesAnExistingFile) {
    GivenOpenProject(u"Shop"_s);
    program->project.record.txtTitle.SetText(u"Kept"_s);
    program->files.SaveProject(QString());
    Path().Base.clear();
    dialogs.lines = {u"Shop"_s, u"Other"_s};
    dialogs.answers = {BoxAnswer::No};
    Start().ChooseStartProject(QString());
    EXPECT_EQ(Path().Base, InProjects(u"Other.rts"_s));
    Path().Base.clear();
    Start().ChooseStartProject(InProjects(u"Shop.rts"_s));
    EXPECT_EQ(forms.shown.size(), 1U) << "a file of the command line is not asked for";
    program->files.LoadProject();
    EXPECT_EQ(program->project.record.txtTitle.Text(), u"Kept"_s);
}

TEST_F(StartProjectTest, TheDialogOffersCreateFirstAndOpenLater) {
    dialog->Load();
    EXPECT_TRUE(dialog->Option1.Checked());
    EXPECT_EQ(dialog->List1.Items(), QStringList{u"More Files..."_s});
    GivenOpenProject(u"A project with a name so long that its path is cut for display"_s);
    dialog->Load();
    EXPECT_TRUE(dialog->Option2.Checked() && !dialog->Option1.Checked());
    EXPECT_TRUE(dialog->List1.Item(1).contains(u"..."_s));
    EXPECT_TRUE(dialog->List1.Item(1).endsWith(u"for display.rts"_s));
}

TEST_F(StartProjectTest, ContinueTakesTheChosenFileOrNone) {
    GivenOpenProject(u"Shop"_s);
    Path().Base = u"left from before"_s;
    dialog->Load();
    dialog->List1.SetListIndex(1);
    dialog->LoadLastProject.SetValue(0);
    dialog->cmdOK_Click();
    EXPECT_EQ(Path().Base, InProjects(u"Shop.rts"_s));
    EXPECT_EQ(program->frmSettings.LoadLastProject.Value(), 0);
    EXPECT_FALSE(dialog->Visible());

    dialog->Load();
    dialog->List1.SetListIndex(1);
    dialog->Option1.SetValue(1);
    dialog->cmdOK_Click();
    EXPECT_EQ(Path().Base, QString());
}

TEST_F(StartProjectTest, MoreFilesOpensAnyFileAndCancelLeavesTheDialogUp) {
    GivenOpenProject(u"Shop"_s);
    dialog->Load();
    dialog->List1.SetListIndex(0);
    dialogs.files = {std::nullopt, InProjects(u"Shop.rts"_s)};
    dialog->cmdOK_Click();
    EXPECT_TRUE(dialog->Visible());
    dialog->List1_DblClick();
    EXPECT_FALSE(dialog->Visible());
    EXPECT_EQ(Path().Base, InProjects(u"Shop.rts"_s));

    dialog->Load();
    QFile::remove(InProjects(u"Shop.rts"_s));
    dialog->List1.SetListIndex(1);
    dialog->List1_DblClick();
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].text, u"File '%1' did not exist.\r\n\r\n"_s.arg(InProjects(u"Shop.rts"_s)));
    EXPECT_TRUE(dialog->Visible());
}

} // namespace
