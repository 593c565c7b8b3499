#include "tests/fakes/program_fixture.h"

#include <QDir>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class ProjectFilesTest : public ProgramFixture {
protected:
    ProjectFilesTest() { GivenSites({u"Alta"_s, u"Beta"_s}); }

    void SaveAs(const QString &file) {
        dialogs.files = {InProjects(file)};
        Files().mnuFileSaveAs_Click();
    }
    ProjectFiles &Files() { return program->files; }
    ProjectPath &Path() { return program->project.path; }
};

TEST_F(ProjectFilesTest, SaveAsCopiesTheProjectAndCleansTheName) {
    Record().txtTitle.SetText(u"Title"_s);
    SaveAs(u"a,b & c#.rts"_s);
    EXPECT_EQ(Path().Base, InProjects(u"ab  c.rts"_s));
    EXPECT_EQ(Path().ProjectName, u"ab  c"_s);
    EXPECT_EQ(Path().StatsFilePath, InProjects(u"a,b & c#.sst"_s));
    EXPECT_EQ(program->frame.Caption(), u"Zephyrine Lanterra 2 - ab  c"_s);
    EXPECT_EQ(program->recentFile.File(1), Path().Base);
    EXPECT_EQ(dialogs.fileDialogs[0].filter, u"Lanterra files (*.rts)|*.rts"_s);
    EXPECT_EQ(dialogs.fileDialogs[0].fileName, u"Project1.rts"_s);
    for (const QString &title : {u"Title"_s, u"Again"_s}) {
        Record().txtTitle.SetText(QString());
        Files().OpenProject(InProjects(u"ab  c.rts"_s));
        EXPECT_EQ(Record().txtTitle.Text(), title);
        Record().txtTitle.SetText(u"Again"_s);
        SaveAs(u"ab  c.rts"_s); // under its own name it stores the fields
    }
    EXPECT_EQ(QDir(InProjects({})).entryList(QDir::Files), (QStringList{u"ab  c.rts"_s, u"Project1.rts"_s}));
}

TEST_F(ProjectFilesTest, CleaningNeverLeadsToAnotherProjectsFile) {
    GivenOpenProject(u"ab"_s);
    SaveAs(u"a+b.rts"_s);
    EXPECT_EQ(Path().Base, InProjects(u"a+b.rts"_s));
    EXPECT_EQ(Path().ProjectName, u"ab"_s);
    // An existing file keeps its name, so that a save reaches it.
    Files().OpenProject(InProjects(u"a+b.rts"_s));
    EXPECT_EQ(Path().Base, InProjects(u"a+b.rts"_s));
    EXPECT_TRUE(Files().SaveProject(QString()).stored);
}

TEST_F(ProjectFilesTest, ANewProjectStartsEmptyButForWhatCarriesOver) {
    Record().txtTitle.SetText(u"Stored"_s);
    Files().SaveProject(QString());
    Record().txtTitle.SetText(u"Typed since"_s);
    dialogs.files = {std::nullopt, InProjects(u"Fresh.rts"_s)};
    Files().mnuFileNew_Click(); // cancelled, so the stored one comes back
    EXPECT_EQ(Path().Base, InProjects(u"Project1.rts"_s));
    EXPECT_EQ(Record().txtTitle.Text(), u"Stored"_s);
    EXPECT_EQ(program->project.lists.List1.SelCount(), 2);

    Record().Check1.SetValue(1);
    Record().SetMultiUrlMode(true);
    Files().mnuFileNew_Click();
    const QMap<QString, QString> kept{{u"txtURL"_s, u"http://"_s},
                                      {u"txtLimit"_s, u"45"_s},
                                      {u"Combo2"_s, u"Business"_s},
                                      {u"txttrazim"_s, u"x"_s}};
    for (const ProjectRecord::TextField &field : Record().TextFields())
        EXPECT_EQ(field.box->Text(), kept.value(field.name)) << field.name.toStdString();
    EXPECT_EQ(Record().Check1.Value(), 1); // the mark of the old project stays
    EXPECT_FALSE(Record().MultiUrlMode());
    EXPECT_EQ(program->project.lists.List1.SelCount(), 0);
    EXPECT_TRUE(QFile::exists(InProjects(u"Fresh.rts"_s)));
}

TEST_F(ProjectFilesTest, OpenAndRecentFiles) {
    GivenOpenProject(u"Second"_s);
    dialogs.files = {std::nullopt, InProjects(u"Project1.rts"_s)};
    for (const QString &name : {u"Second"_s, u"Project1"_s}) {
        Files().mnuFileOpen_Click();
        EXPECT_EQ(Path().ProjectName, name);
    }
    StartProgram(); // the list outlives the program
    program->recentFile.Load();
    Files().mnuFileMRU_Click(2);
    EXPECT_EQ(Path().ProjectName, u"Second"_s);

    QFile::remove(InProjects(u"Project1.rts"_s));
    Files().mnuFileMRU_Click(2);
    EXPECT_EQ(Path().Base, InProjects(u"Project1.rts"_s));
    EXPECT_FALSE(Files().SaveProject(QString()).stored);
    EXPECT_FALSE(QFile::exists(InProjects(u"Project1.rts"_s))); // nothing creates it
}

TEST_F(ProjectFilesTest, AsksToSaveOnlyAProjectWithoutAFile) {
    Files().AskSaveProject();
    EXPECT_EQ(settings.Get(u"Startup"_s, u"Base"_s), InProjects(u"Project1.rts"_s));
    Path().Base.clear();
    dialogs.answers = {BoxAnswer::No, BoxAnswer::Yes};
    dialogs.files = {std::nullopt};
    for (const std::size_t asked : {0U, 1U}) {
        Files().AskSaveProject();
        EXPECT_EQ(dialogs.fileDialogs.size(), asked);
    }
    EXPECT_EQ(dialogs.boxes.back().text, u"Save current project ?"_s);
    EXPECT_EQ(dialogs.boxes.back().defaultAnswer, BoxAnswer::No);
}

TEST(ProjectPathTest, DerivesFolderAndName) {
    const QTemporaryDir home;
    ProjectPath path(home.path());
    EXPECT_EQ(path.ProjectFolder, home.filePath(u"Projects/"_s));
    EXPECT_EQ(path.ProjectName, u"Project1"_s);
    const QList<QStringList> cases{
        {u"/x/my.site.rts"_s, u"my.site"_s, u"/x/my.site.rts"_s},
        {u"/x/old.mdb"_s, u"old"_s, u"/x/old.rts"_s},
        {u"/x/a:b?.rts"_s, u"ab"_s, u"/x/ab.rts"_s},
        {u"/x/&&.rts"_s, u"&&"_s, u"/x/&&.rts"_s}, // nothing would be left of it
        {u"/x/ab"_s, u"ab"_s, u"/x/ab.rts"_s},
        {u"/x/caf\u00e9.RTS"_s, u"caf\u00e9"_s, u"/x/caf\u00e9.rts"_s},
        {u"relative.rts"_s, u"relative"_s, QDir().absoluteFilePath(u"relative.rts"_s)}};
    for (const QStringList &row : cases) {
        path.Base = row[0];
        path.SplitProjectPath();
        EXPECT_EQ(path.ProjectName, row[1]);
        EXPECT_EQ(path.Base, row[2]);
    }
    path.Base.clear();
    path.SplitProjectPath();
    EXPECT_EQ(path.Base, QString());
}

} // namespace
