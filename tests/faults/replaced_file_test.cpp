#include "support/whole_file.h"
#include "tests/fakes/site_database_builder.h"
#include "tests/faults/faults_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class ReplacedFileTest : public FaultsFixture {
protected:
    ReplacedFileTest() { GivenEditedProject(folder.path()); }

    QString Other() const { return faulted->InProjects(u"Other.rts"_s); }
    QString StoredTitle(const QString &file) const {
        FaultedProgram fresh(folder.path());
        fresh.program.files.OpenProject(file);
        return fresh.program.project.record.txtTitle.Text();
    }
};

TEST_F(ReplacedFileTest, ADeletedProjectIsNotWrittenIntoTheVoidAndSaveAsIsTheWayOut) {
    ASSERT_EQ(Do(u"category"_s), QString());
    ASSERT_TRUE(QFile::remove(Site()));
    EXPECT_EQ(Do(u"category"_s), u"The category could not be stored. There is no such file."_s);
    EXPECT_EQ(Do(u"stats-row"_s), u"There is no such file."_s);
    EXPECT_EQ(Do(u"save"_s), u"The project could not be saved: There is no such file."_s);
    EXPECT_FALSE(QFile::exists(Site()));
    EXPECT_EQ(Do(u"save-as"_s), QString());
    EXPECT_EQ(StoredTitle(Other()), u"Edited"_s);
    EXPECT_EQ(Do(u"save"_s), QString());
}

TEST_F(ReplacedFileTest, AFileThatTookItsPlaceIsOpenedAnew) {
    ASSERT_TRUE(CopyWholeFile(Other(), Site()));
    EXPECT_EQ(Do(u"category"_s), QString());
    EXPECT_TRUE(StateOf(Site()).contains(u"Business|\n"_s));
    ASSERT_TRUE(CopyWholeFile(Other(), Site()));
    EXPECT_EQ(Do(u"stats-row"_s), QString());
    EXPECT_TRUE(StateOf(Site()).contains(u"Alta\r\n"_s));
    ASSERT_TRUE(CopyWholeFile(Other(), Site()));
    EXPECT_EQ(Do(u"save"_s), QString());
    EXPECT_EQ(StoredTitle(Site()), u"Edited"_s);
}

TEST_F(ReplacedFileTest, ASaveThatLosesItsFileUnderwayTellsSo) {
    faulted->queue.AtYield(3, [this] { ASSERT_TRUE(CopyWholeFile(Other(), Site())); });
    const QString other = StateOf(Other());
    EXPECT_EQ(Do(u"save"_s),
              u"The project could not be saved: The file was replaced or removed by another program."_s);
    EXPECT_EQ(StateOf(Site()), other);
    EXPECT_EQ(Do(u"save"_s), QString());
    EXPECT_EQ(StoredTitle(Site()), u"Edited"_s);
}

TEST_F(ReplacedFileTest, MarksNeverGoToTheSitesOfAnotherFile) {
    SiteDatabaseBuilder strange;
    ASSERT_TRUE(strange.Site(u"Beta"_s).Site(u"Alta"_s).Write(Site()));
    const QByteArray before = BytesOf(Site());
    EXPECT_EQ(Do(u"save"_s),
              u"The project could not be saved: Another program has put other sites into the file."_s);
    EXPECT_TRUE(BytesOf(Site()) == before);
    EXPECT_EQ(Do(u"save-as"_s), QString());
    EXPECT_EQ(Do(u"save"_s), QString());
    EXPECT_EQ(StoredTitle(Other()), u"Edited"_s);
    EXPECT_TRUE(BytesOf(Site()) == before);
}

// A journal that was left by a crash would be played back into whatever takes the database's name.
TEST_F(ReplacedFileTest, AJournalOfTheOldFileDoesNotComeUnderTheNewOne) {
    const QByteArray old = BytesOf(Other());
    QByteArray journal;
    {
        SqliteConnection dying(Other(), SqliteConnection::Mode::ReadWrite);
        dying.Run(u"PRAGMA cache_size = 1"_s);
        dying.Run(u"BEGIN"_s);
        dying.Run(u"UPDATE Data SET Query = Query || 'x'"_s);
        journal = BytesOf(Other() + u"-journal"_s);
        ASSERT_FALSE(journal.isEmpty());
    }
    Overwrite(Other() + u"-journal"_s, journal);
    EXPECT_EQ(Do(u"save-as"_s), QString());
    EXPECT_FALSE(QFile::exists(Other() + u"-journal"_s));
    EXPECT_EQ(StoredTitle(Other()), u"Edited"_s);
}

} // namespace
