#include "tests/fakes/program_fixture.h"

#include "project/site_schema.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SiteDatabaseUpdateTest : public ProgramFixture {
protected:
    /// A project of two sites, one of which has a success, and a master with one site more than that.
    SiteDatabaseUpdateTest() {
        GivenSites({u"Alta"_s, u"Gone"_s});
        program->project.record.txtTitle.SetText(u"Stored"_s);
        program->files.SaveProject(QString());
        RunResult run;
        run.Begin(2);
        run.AddSuccess(u"Alta"_s, 0);
        program->statistics.AppendSessionRow(run);
        program->project.record.txtTitle.SetText(u"Of another project"_s);
        SiteDatabaseBuilder master;
        master.Version(2).Site(u"Alta"_s).Site(u"New"_s, u"directory"_s).Categories({u"Top"_s, u"Arts"_s});
        GivenMaster(master.Site(u"Newer"_s));
    }

    void OpenProject() {
        QObject::connect(&program->files, &ProjectFiles::ProgramEnds, &program->files, [this] { ++ends; });
        program->files.OpenProject(file);
    }

    /// All rows of a table that another program finds in the project.
    QStringList Stored(const QString &table, const QStringList &fields) const {
        DatabaseFiles files(SiteSchema());
        DataControl rows(files, DataControl::Access::ReadOnly);
        Bind(rows, table);
        QStringList texts;
        for (bool here = rows.MoveFirst(); here; here = rows.MoveNext()) {
            for (const QString &field : fields)
                texts += rows.Text(field);
        }
        return texts;
    }
    void Bind(DataControl &rows, const QString &table) const {
        rows.SetDatabaseName(file);
        rows.SetRecordSource(table);
        EXPECT_TRUE(rows.Refresh());
    }
    const QStringList nameAndMark{u"Name"_s, u"Selected"_s};
    const QStringList oldRows{u"Alta"_s, u"-1"_s, u"Gone"_s, u"-1"_s};
    const QString file = home.filePath(u"Projects/Project1.rts"_s);
    int ends = 0;
};

TEST_F(SiteDatabaseUpdateTest, TakesOverTheSitesSelectsThoseWithoutASuccessAndEndsTheProgram) {
    program->project.record.chkMultiSameDesc.SetValue(1);
    queue.AtYield(2, [&] { program->files.mnuFileSave_Click(); }); // would store another project's data
    OpenProject();
    // The third row lies behind the list of the session before.
    EXPECT_EQ(Stored(u"Data"_s, nameAndMark),
              (QStringList{u"Alta"_s, u"0"_s, u"New"_s, u"-1"_s, u"Newer"_s, u"0"_s}));
    EXPECT_EQ(Stored(u"Data"_s, {u"Version"_s, u"Type"_s}).first(2),
              (QStringList{u"2"_s, u"search engine"_s}));
    EXPECT_EQ(Stored(u"Categories"_s, {u"Name"_s, u"Categories"_s, u"Selected"_s}),
              (QStringList{u"New"_s, u"Top\r\nArts"_s, u""_s}));
    EXPECT_EQ(Stored(u"Project"_s, {u"txtTitle"_s}), QStringList{u"Stored"_s});
    EXPECT_EQ(Stored(u"Stats"_s, {u"Successful Submissions"_s}), QStringList{u"Alta\r\n"_s});
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].title, u"New search engine database"_s);
    EXPECT_EQ(dialogs.boxes[0].text,
              u"Search engine database updated successfully. The new web sites are automatically selected."
              u"\r\n\r\nYou must restart the program."_s);
    EXPECT_EQ(dialogs.boxes[0].icon, BoxIcon::Information);
    EXPECT_EQ(settings.Get(u"Settings"_s, u"ms"_s), u"1"_s);
    EXPECT_TRUE(QFile::exists(file + u".bak"_s));
    EXPECT_EQ(ends, 1);

    const QStringList after = Stored(u"Project"_s, {u"txtTitle"_s});
    program->files.mnuFileSave_Click();
    program->files.LoadProject();
    program->files.mnuFileSaveAs_Click();
    EXPECT_EQ(Stored(u"Project"_s, {u"txtTitle"_s}), after);
    EXPECT_EQ(program->project.lists.List1.Items(), (QStringList{u"Alta"_s, u"Gone"_s}));
}

TEST_F(SiteDatabaseUpdateTest, SelectsNothingAtTheStartOfTheProgramWhenTheListIsEmpty) {
    StartProgram();
    OpenProject();
    EXPECT_EQ(Stored(u"Data"_s, nameAndMark),
              (QStringList{u"Alta"_s, u""_s, u"New"_s, u""_s, u"Newer"_s, u""_s}));
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_TRUE(program->files.Ended());
}

TEST_F(SiteDatabaseUpdateTest, AnInterruptedImportLeavesTheOldRowsAndTellsWhy) {
    const auto anotherProgramSaves = [&] {
        DatabaseFiles files(SiteSchema());
        DataControl sessions(files, DataControl::Access::ReadWrite);
        Bind(sessions, u"Stats"_s);
        EXPECT_TRUE(sessions.AddNew() && sessions.Update());
    };
    const std::vector<std::pair<ScriptedEventQueue::Step, QString>> cases{
        {[&] { program->project.database.Data1.SetDatabaseName(file); }, u"It was interrupted."_s},
        {anotherProgramSaves, u"The project was changed meanwhile."_s},
        {[&] { queue.Close(); }, u"It was interrupted."_s},
    };
    for (const auto &[step, reason] : cases) {
        queue.AtYield(3, step);
        OpenProject();
        EXPECT_EQ(program->frame.Notice.Caption(),
                  u"The new search engine database could not be taken over: "_s + reason);
        EXPECT_EQ(Stored(u"Data"_s, nameAndMark), oldRows);
        EXPECT_EQ(program->project.lists.List1.Items(), (QStringList{u"Alta"_s, u"Gone"_s}));
        EXPECT_EQ(program->project.record.txtTitle.Text(), u"Stored"_s) << "the project is loaded as it is";
    }
    EXPECT_EQ(Stored(u"Stats"_s, {u"Successful"_s}), (QStringList{u"1"_s, u""_s}));
    EXPECT_EQ(ends, 0);
    EXPECT_EQ(dialogs.boxes.size(), 0U);
    EXPECT_EQ(QDir(home.filePath(u"Projects"_s)).entryList(QDir::Files), QStringList{u"Project1.rts"_s});
}

} // namespace
