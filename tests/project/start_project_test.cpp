#include "tests/fakes/program_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class StartProjectTest : public ProgramFixture {
protected:
    StartProjectTest() { GivenMaster(SiteDatabaseBuilder().Site(u"Alta"_s)); }

    ProjectDialog &Dialog() { return program->frmProjectDialog; }
    QString &Base() { return program->project.path.Base; }
};

TEST_F(StartProjectTest, AsksForANameUntilOneIsGivenAndReplacesNoProjectWithoutAsking) {
    GivenOpenProject(u"Shop"_s);
    Record().txtTitle.SetText(u"Kept"_s);
    program->files.SaveProject(QString());
    Base().clear();
    dialogs.lines = {QString(), u"  "_s, u".."_s, u"?:/"_s, u"Shop"_s, u"My: shop"_s};
    dialogs.answers = {BoxAnswer::No};
    program->startProject.ChooseStartProject(QString());
    EXPECT_EQ(forms.shown, std::vector{ModalForm::ProjectDialog});
    EXPECT_EQ(Base(), InProjects(u"My shop.rts"_s));
    EXPECT_TRUE(QFile::exists(Base()));
    EXPECT_EQ(dialogs.Told(), u"Error: You must enter your new project name \n"_s.repeated(4) +
                                  u"Zephyrine Lanterra: A project of this name exists. Replace it ?"_s);
    EXPECT_EQ(dialogs.inputBoxes[0].title, u"Create a new project"_s);
    EXPECT_EQ(dialogs.inputBoxes[0].defaultText, u"Project1"_s);
    program->startProject.ChooseStartProject(InProjects(u"Shop.rts"_s));
    EXPECT_EQ(forms.shown.size(), 1U) << "a file of the command line is not asked for";
    EXPECT_EQ(Record().txtTitle.Text(), u"Kept"_s);
}

TEST_F(StartProjectTest, TheEndOfTheProgramEndsTheAskingWithoutABox) {
    dialogs.lines = {QString()};
    dialogs.onAsk = [this] { queue.Close(); };
    program->startProject.ChooseStartProject(QString());
    EXPECT_EQ(dialogs.Told(), QString());
}

TEST_F(StartProjectTest, ContinueTakesTheChosenFileOrNone) {
    Dialog().Load();
    EXPECT_TRUE(Dialog().Option1.Checked());
    EXPECT_EQ(Dialog().List1.Items(), QStringList{u"More Files..."_s});
    const QString name = u"A project with a name so long that its path is cut for display"_s;
    GivenOpenProject(name);
    for (const bool opens : {true, false}) {
        Base() = u"left from before"_s;
        Dialog().Load();
        EXPECT_TRUE(Dialog().Option2.Checked() && !Dialog().Option1.Checked());
        EXPECT_TRUE(Dialog().List1.Item(1).contains(u".../A project"_s));
        Dialog().List1.SetListIndex(1);
        Dialog().LoadLastProject.SetValue(0);
        (opens ? Dialog().Option2 : Dialog().Option1).SetValue(1);
        Dialog().cmdOK_Click();
        EXPECT_EQ(Base(), opens ? InProjects(name + u".rts"_s) : QString());
        EXPECT_EQ(program->frmSettings.LoadLastProject.Value(), 0);
        EXPECT_FALSE(Dialog().Visible());
    }
}

TEST_F(StartProjectTest, MoreFilesOpensAnyFileAndCancelLeavesTheDialogUp) {
    GivenOpenProject(u"Shop"_s);
    Dialog().Load();
    Dialog().List1.SetListIndex(0);
    dialogs.files = {std::nullopt, InProjects(u"Shop.rts"_s)};
    Dialog().cmdOK_Click();
    EXPECT_TRUE(Dialog().Visible());
    Dialog().List1_DblClick();
    EXPECT_FALSE(Dialog().Visible());
    EXPECT_EQ(Base(), InProjects(u"Shop.rts"_s));

    Dialog().Load();
    QFile::remove(InProjects(u"Shop.rts"_s));
    Dialog().List1.SetListIndex(1);
    Dialog().List1_DblClick();
    EXPECT_EQ(dialogs.Told(), u"Error: File '%1' did not exist.\r\n\r\n"_s.arg(InProjects(u"Shop.rts"_s)));
    EXPECT_TRUE(Dialog().Visible());
}

} // namespace
