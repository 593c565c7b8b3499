#include "tests/fakes/program_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

/// What stands in table "Project" after each kind of save.
class ProjectRowsTest : public ProgramFixture {
protected:
    ProjectRowsTest() { GivenSites({u"Alta"_s}); }

    /// One address for each letter.
    void GivenUrls(const QString &letters) {
        Record().ResetUrls();
        Record().SetMultiUrlMode(true);
        Record().MultiUrlUpper = static_cast<int>(letters.size()) - 1;
        for (int slot = 0; slot < letters.size(); ++slot) {
            const QString url = u"http://%1.example/"_s.arg(letters[slot]);
            Record().multiUrlTable.SetCell(slot, MultiUrlTable::urlColumn, url);
            Record().multiUrlTable.SetCell(slot, MultiUrlTable::titleColumn, u"Title"_s);
        }
        Record().ShowSlot(0);
    }
    StoreResult Save() { return program->files.SaveProject(QString()); }
    void Reload() { program->files.OpenProject(program->project.path.Base); }

    /// The letter of each stored row, with its title and e-mail.
    QString Rows() {
        DataControl table(program->databaseFiles, DataControl::Access::ReadOnly);
        table.SetDatabaseName(program->project.path.Base);
        table.SetRecordSource(u"Project"_s);
        EXPECT_TRUE(table.Refresh()) << table.Failure().toStdString();
        QStringList rows;
        for (bool here = table.MoveFirst(); here; here = table.MoveNext())
            rows << table.Text(u"txtURL"_s).mid(7, 1) + u'-' + table.Text(u"txtTitle"_s) + u'-' +
                        table.Text(u"txtEmail"_s);
        return rows.join(u' ');
    }
    QString LoadedUrls() {
        QString letters;
        for (int slot = 0; slot < MultiUrlTable::slotCount; ++slot)
            letters += Record().multiUrlTable.Cell(slot, MultiUrlTable::urlColumn).mid(7, 1);
        return letters;
    }
};

TEST_F(ProjectRowsTest, TheFirstSaveOfSeveralUrlsHoldsTheFirstOneTwice) {
    Record().txtTitle.SetText(u"Title"_s);
    EXPECT_TRUE(Save().stored && Save().stored);
    EXPECT_EQ(Rows(), u"w-Title-x"_s);
    GivenUrls(u"ab"_s);
    Save();
    EXPECT_EQ(Rows(), u"a-Title-x a-Title- a-Title- b-Title-"_s);
    Reload();
    EXPECT_TRUE(Record().MultiUrlMode());
    EXPECT_EQ(LoadedUrls(), u"aab"_s);
    EXPECT_EQ(Record().MultiUrlUpper, 2);
}

TEST_F(ProjectRowsTest, LaterSavesHoldEachUrlOnceAndLeavingTheModeKeepsThem) {
    GivenUrls(u"ab"_s);
    Save();
    GivenUrls(u"cde"_s);
    Save();
    EXPECT_EQ(Rows(), u"c-Title-x c-Title- d-Title- e-Title-"_s);
    Reload();
    EXPECT_EQ(LoadedUrls(), u"cde"_s);
    EXPECT_EQ(Record().HScroll1.Maximum(), 2);
    EXPECT_EQ(Record().HScroll1.Value(), 0);
    EXPECT_EQ(Record().txtURL.Text(), u"http://c.example/"_s);
    EXPECT_TRUE(Record().chkMultiSameDesc.Enabled());
    Record().SetMultiUrlMode(false);
    Save();
    Reload();
    EXPECT_TRUE(Record().MultiUrlMode());
    EXPECT_EQ(LoadedUrls(), u"cde"_s);

    Record().multiUrlTable.SetCell(1, MultiUrlTable::urlColumn, u"http://d.e"_s);
    Save();
    Reload();
    EXPECT_EQ(Record().MultiUrlUpper, 1) << "ten characters are no address, so the last one isn't counted";
}

TEST_F(ProjectRowsTest, CutsMostTextsAndRefusesLongAddressAndKeywordsAlone) {
    Record().txtKey[2].SetText(u"old"_s);
    Save();
    Record().txtKey[2].SetText(QString(256, u'k'));
    Record().txtURL.SetText(u"http://"_s + QString(249, u'u'));
    Record().txtCity.SetText(QString(300, u'c'));
    Record().txtDesc.SetText(QString(254, u'd') + u"\U0001F600"_s);
    Record().txtZip.SetText(QString(255, u'z'));
    const StoreResult result = Save();
    EXPECT_TRUE(result.stored);
    EXPECT_EQ(result.refused, (QStringList{u"txtURL"_s, u"txtKey3"_s}));
    EXPECT_EQ(Record().txtCity.Text(), QString(255, u'c')); // the box itself is cut
    EXPECT_EQ(Record().txtDesc.Text(), QString(254, u'd')); // never half of a pair
    Reload();
    EXPECT_EQ(Record().txtKey[2].Text(), u"old"_s);
    EXPECT_EQ(Record().txtURL.Text(), u"http://www.page.example/"_s);
    EXPECT_EQ(Record().txtZip.Text(), QString(255, u'z'));
}

TEST_F(ProjectRowsTest, StoresMarksByRow) {
    SiteDatabaseBuilder master;
    master.Site(u"A"_s).Site(u"B"_s).Site(QString()).Site(u"D"_s); // the empty name cuts the list short
    GivenMaster(master);
    GivenOpenProject(u"Cut"_s);
    ListBox &list = program->project.lists.List1;
    list.SetSelected(0, false);
    Record().Check1.SetValue(1);
    Record().Check3.SetValue(1);
    Save();
    Record().Check1.SetValue(0);
    Reload();
    EXPECT_EQ(list.Items(), (QStringList{u"A"_s, u"B"_s}));
    EXPECT_FALSE(list.Selected(0));
    EXPECT_TRUE(list.Selected(1));
    EXPECT_EQ(Record().Check1.Value() + Record().Check3.Value(), 2);
    EXPECT_EQ(program->project.lists.SiteNames, (QStringList{u"A"_s, u"B"_s}));
}

} // namespace
