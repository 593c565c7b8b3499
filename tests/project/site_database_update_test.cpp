#include "tests/fakes/program_fixture.h"

#include "project/site_schema.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

/// A stored project of two sites, one of which has a success, and a master with one site more than that.
class SiteDatabaseUpdateTest : public ProgramFixture {
protected:
    SiteDatabaseUpdateTest() {
        GivenSites({u"Alta"_s, u"Gone"_s});
        program->project.record.txtTitle.SetText(u"Stored"_s);
        program->files.SaveProject(QString());
        program->result.AddSuccess(u"Alta"_s, 0);
        program->statistics.AppendSessionRow(program->result);
        program->project.record.txtTitle.SetText(u"Of another project"_s);
        SiteDatabaseBuilder master;
        master.Version(2).Site(u"Alta"_s).Site(u"New"_s, u"directory"_s).Categories({u"Top"_s, u"Arts"_s});
        GivenMaster(master.Site(u"Newer"_s));
    }

    /// What another program finds in the project: sites with their marks and versions, directories, title,
    /// successes.
    QString Stored() const {
        const QList<QStringList> tables{{u"Data"_s, u"Name"_s, u"Selected"_s, u"Version"_s},
                                        {u"Categories"_s, u"Name"_s, u"Categories"_s},
                                        {u"Project"_s, u"txtTitle"_s},
                                        {u"Stats"_s, u"Successful Submissions"_s}};
        DatabaseFiles files(SiteSchema());
        DataControl rows(files, DataControl::Access::ReadOnly);
        rows.SetDatabaseName(file);
        QString text;
        for (const QStringList &table : tables) {
            EnsureRecordSource(rows, table.first());
            for (bool here = rows.MoveFirst(); here; here = rows.MoveNext()) {
                for (const QString &field : table.mid(1))
                    text += rows.Text(field).simplified() + u',';
            }
        }
        return text;
    }
    const QString file = home.filePath(u"Projects/Project1.rts"_s);
};

TEST_F(SiteDatabaseUpdateTest, TakesOverTheSitesSelectsThoseWithoutASuccessAndEndsTheProgram) {
    program->project.record.chkMultiSameDesc.SetValue(1);
    queue.AtYield(2, [&] { program->files.mnuFileSave_Click(); }); // would store another project's data
    program->files.OpenProject(file);
    program->files.mnuFileSave_Click();
    program->files.LoadProject();
    program->files.mnuFileSaveAs_Click(); // would ask
    // The third site lies behind the list of the session before.
    EXPECT_EQ(Stored(), u"Alta,0,2,New,-1,,Newer,0,,New,Top Arts,Stored,Alta,"_s);
    EXPECT_EQ(dialogs.Told(),
              u"New search engine database: Search engine database updated successfully. "
              "The new web sites are automatically selected.\r\n\r\nYou must restart the program."_s);
    EXPECT_EQ(settings.Get(u"Settings"_s, u"ms"_s), u"1"_s);
    EXPECT_TRUE(QFile::exists(file + u".bak"_s));
    EXPECT_TRUE(program->files.Ended());
}

TEST_F(SiteDatabaseUpdateTest, SelectsNothingAtTheStartOfTheProgramWhenTheListIsEmpty) {
    StartProgram();
    program->files.OpenProject(file);
    EXPECT_EQ(Stored(), u"Alta,,2,New,,,Newer,,,New,Top Arts,Stored,Alta,"_s);
}

TEST_F(SiteDatabaseUpdateTest, AnOlderMasterIsNotTakenOver) {
    const QString before = Stored();
    GivenMaster(SiteDatabaseBuilder().Version(0).Site(u"New"_s));
    program->files.OpenProject(file);
    EXPECT_EQ(Stored(), before);
}

TEST_F(SiteDatabaseUpdateTest, AnInterruptedImportLeavesTheOldRowsAndTellsWhy) {
    const QString before = Stored();
    const auto anotherProgramSaves = [&] {
        DatabaseFiles files(SiteSchema());
        DataControl sessions(files, DataControl::Access::ReadWrite);
        sessions.SetDatabaseName(file);
        EnsureRecordSource(sessions, u"Stats"_s);
        EXPECT_TRUE(sessions.AddNew() && sessions.Update());
    };
    const std::vector<std::pair<ScriptedEventQueue::Step, QString>> cases{
        {[&] { program->project.database.Data1.SetDatabaseName(file); }, u"It was interrupted."_s},
        {anotherProgramSaves, u"The project was changed meanwhile."_s}};
    for (const auto &[step, reason] : cases) {
        queue.AtYield(3, step);
        program->files.OpenProject(file);
        EXPECT_EQ(program->frame.Notice.Caption(),
                  u"The new search engine database could not be taken over: "_s + reason);
        EXPECT_TRUE(Stored().startsWith(before));
        EXPECT_EQ(program->project.record.txtTitle.Text(), u"Stored"_s) << "the project is loaded as it is";
    }
    EXPECT_TRUE(Stored().endsWith(u"Alta,,"_s)) << "the other program's row is lost";
}

} // namespace
