#include "tests/fakes/program_fixture.h"

#include <QDir>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class ProjectFilesTest : public ProgramFixture {
protected:
    ProjectFilesTest() { GivenSites({u"Alta"_s, u"Beta"_s}); }

    QString InProjects(const QString &file) const { return home.filePath(u"Projects/"_s + file); }
    ProjectFiles &Files() { return program->files; }
    ProjectRecord &Record() { return program->project.record; }
    ProjectPath &Path() { return program->project.path; }
};

TEST_F(ProjectFilesTest, SaveAsCopiesTheProjectAndCleansTheName) {
    Record().txtTitle.SetText(u"Title"_s);
    dialogs.files = {InProjects(u"a,b & c#.rts"_s)};
    Files().mnuFileSaveAs_Click();
    EXPECT_EQ(Path().Base, InProjects(u"ab  c.rts"_s));
    EXPECT_EQ(Path().ProjectName, u"ab  c"_s);
    EXPECT_EQ(Path().StatsFilePath, InProjects(u"a,b & c#.sst"_s));
    EXPECT_EQ(program->frame.Caption(), u"Zephyrine Lanterra 2 - ab  c"_s);
    EXPECT_EQ(program->recentFile.File(1), Path().Base);
    Record().txtTitle.SetText(QString());
    Files().OpenProject(InProjects(u"ab  c.rts"_s));
    EXPECT_EQ(Record().txtTitle.Text(), u"Title"_s);
    EXPECT_EQ(dialogs.fileDialogs[0].filter, u"Lanterra files (*.rts)|*.rts"_s);
    EXPECT_EQ(dialogs.fileDialogs[0].fileName, u"Project1.rts"_s);
}

TEST_F(ProjectFilesTest, SaveAsUnderTheSameNameStoresTheFields) {
    Record().txtTitle.SetText(u"Again"_s);
    dialogs.files = {Path().Base};
    Files().mnuFileSaveAs_Click();
    Record().txtTitle.SetText(QString());
    Files().LoadProject();
    EXPECT_EQ(Record().txtTitle.Text(), u"Again"_s);
    EXPECT_EQ(QDir(home.filePath(u"Projects"_s)).entryList(QDir::Files), QStringList{u"Project1.rts"_s});
}

TEST_F(ProjectFilesTest, CleaningNeverLeadsToAnotherProjectsFile) {
    GivenOpenProject(u"ab"_s);
    dialogs.files = {InProjects(u"a+b.rts"_s)};
    Files().mnuFileSaveAs_Click();
    EXPECT_EQ(Path().Base, InProjects(u"a+b.rts"_s));
    EXPECT_EQ(Path().ProjectName, u"ab"_s);

    Files().OpenProject(
        InProjects(u"a+b.rts"_s)); // an existing file keeps its name, so that a save reaches it
    EXPECT_EQ(Path().Base, InProjects(u"a+b.rts"_s));
    EXPECT_TRUE(Files().SaveProject(QString()).stored);
}

TEST_F(ProjectFilesTest, ANewProjectStartsEmptyButForWhatCarriesOver) {
    Record().Check1.SetValue(1);
    Record().SetMultiUrlMode(true);
    dialogs.files = {InProjects(u"Fresh.rts"_s)};
    Files().mnuFileNew_Click();
    EXPECT_EQ(Record().txtURL.Text(), u"http://"_s);
    EXPECT_EQ(Record().txtEmail.Text(), QString());
    EXPECT_EQ(Record().txtKey[5].Text(), QString());
    EXPECT_EQ(Record().txtDesc.Text(), QString());
    EXPECT_EQ(Record().txtLimit.Text(), u"45"_s);
    EXPECT_EQ(Record().Check1.Value(), 1); // the mark of the old project stays
    EXPECT_EQ(Record().Combo2.Text(), u"Business"_s);
    EXPECT_FALSE(Record().MultiUrlMode());
    EXPECT_EQ(program->project.lists.List1.SelCount(), 0);
    EXPECT_TRUE(QFile::exists(InProjects(u"Fresh.rts"_s)));
}

TEST_F(ProjectFilesTest, ACancelledNewProjectBringsTheStoredOneBack) {
    Record().txtTitle.SetText(u"Stored"_s);
    Files().SaveProject(QString());
    Record().txtTitle.SetText(u"Typed since"_s);
    dialogs.files = {std::nullopt};
    Files().mnuFileNew_Click();
    EXPECT_EQ(Path().Base, InProjects(u"Project1.rts"_s));
    EXPECT_EQ(Record().txtTitle.Text(), u"Stored"_s);
    EXPECT_EQ(program->project.lists.List1.SelCount(), 2);
}

TEST_F(ProjectFilesTest, OpenAndRecentFiles) {
    GivenOpenProject(u"Second"_s);
    dialogs.files = {std::nullopt, InProjects(u"Project1.rts"_s)};
    Files().mnuFileOpen_Click();
    EXPECT_EQ(Path().ProjectName, u"Second"_s);
    Files().mnuFileOpen_Click();
    EXPECT_EQ(Path().ProjectName, u"Project1"_s);
    EXPECT_EQ(program->recentFile.File(2), InProjects(u"Second.rts"_s));

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

TEST_F(ProjectFilesTest, AFileWithoutSitesIsRefusedAndStaysAsItIs) {
    const QByteArray garbage = "this is no database";
    QFile bad(InProjects(u"bad.rts"_s));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write(garbage);
    bad.close();
    Record().txtTitle.SetText(u"Typed"_s);
    Files().OpenProject(bad.fileName());
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].text, u"Error! Invalid project file. "_s);
    EXPECT_EQ(dialogs.boxes[0].title, u"Error"_s);
    EXPECT_EQ(Record().txtTitle.Text(), u"Typed"_s);
    EXPECT_EQ(program->project.lists.List1.ListCount(), 0);
    Files().mnuFileSave_Click();
    ASSERT_TRUE(bad.open(QIODevice::ReadOnly));
    EXPECT_EQ(bad.readAll(), garbage);
    EXPECT_EQ(QDir(home.filePath(u"Projects"_s)).entryList({u"bad*"_s}, QDir::Files).size(), 1);
}

class CountingImport : public SiteDatabaseImport {
public:
    void ImportSiteDatabase() override { ++calls; }
    int calls = 0;
};

TEST_F(ProjectFilesTest, OnlyAGreaterMasterVersionStartsTheImport) {
    CountingImport import;
    Files().SetImport(&import);
    const struct { int version, calls; } masters[] = {{1, 0}, {0, 0}, {2, 1}};
    for (const auto &master : masters) {
        import.calls = 0;
        SiteDatabaseBuilder builder;
        builder.Version(master.version).Site(u"New"_s);
        program->project.database.Unbind();
        ASSERT_TRUE(builder.Write(Path().MasterFile()));
        Files().OpenProject(InProjects(u"Project1.rts"_s));
        EXPECT_EQ(import.calls, master.calls) << master.version;
    }
    EXPECT_EQ(program->project.lists.List1.ListCount(), 2); // the import took the place of the reading
}

TEST_F(ProjectFilesTest, AsksToSaveOnlyAProjectWithoutAFile) {
    Files().AskSaveProject();
    EXPECT_EQ(settings.Get(u"Startup"_s, u"Base"_s), InProjects(u"Project1.rts"_s));
    Path().Base.clear();
    dialogs.answers = {BoxAnswer::No, BoxAnswer::Yes};
    Files().AskSaveProject();
    EXPECT_TRUE(dialogs.fileDialogs.empty());
    dialogs.files = {std::nullopt};
    Files().AskSaveProject();
    EXPECT_EQ(dialogs.boxes.back().text, u"Save current project ?"_s);
    EXPECT_EQ(dialogs.boxes.back().defaultAnswer, BoxAnswer::No);
    EXPECT_EQ(dialogs.fileDialogs.size(), 1U);
}

TEST(ProjectPathTest, DerivesFolderAndName) {
    QTemporaryDir home;
    ProjectPath path(home.path());
    EXPECT_EQ(path.ProjectFolder, home.filePath(u"Projects/"_s));
    EXPECT_EQ(path.ProjectName, u"Project1"_s);
    const struct {
        QString base, name, becomes;
    } cases[] = {
        {u"/x/my.site.rts"_s, u"my.site"_s, u"/x/my.site.rts"_s},
        {u"/x/old.mdb"_s, u"old"_s, u"/x/old.rts"_s},
        {u"/x/a:b?.rts"_s, u"ab"_s, u"/x/ab.rts"_s},
        {u"/x/&&.rts"_s, u"&&"_s, u"/x/&&.rts"_s}, // nothing would be left of it
        {u"/x/ab"_s, u"ab"_s, u"/x/ab.rts"_s},
        {u"/x/caf\u00e9.RTS"_s, u"caf\u00e9"_s, u"/x/caf\u00e9.rts"_s},
    };
    for (const auto &one : cases) {
        path.Base = one.base;
        path.SplitProjectPath();
        EXPECT_EQ(path.ProjectName, one.name);
        EXPECT_EQ(path.Base, one.becomes);
        EXPECT_EQ(path.ProjectFolder, u"/x/"_s);
    }
    path.Base = u"relative.rts"_s;
    path.SplitProjectPath();
    EXPECT_EQ(path.Base, QDir().absoluteFilePath(u"relative.rts"_s));
    path.Base.clear();
    path.SplitProjectPath();
    EXPECT_EQ(path.Base, QString());
}

} // namespace
