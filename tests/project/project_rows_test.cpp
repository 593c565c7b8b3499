#include "tests/fakes/program_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

/// What stands in table "Project" after each kind of save.
class ProjectRowsTest : public ProgramFixture {
protected:
    ProjectRowsTest() { GivenSites({u"Alta"_s}); }

    void GivenUrls(const QStringList &urls) {
        Record().ResetUrls();
        Record().SetMultiUrlMode(true);
        Record().MultiUrlUpper = static_cast<int>(urls.size()) - 1;
        for (int slot = 0; slot < urls.size(); ++slot) {
            Record().multiUrlTable.SetCell(slot, MultiUrlTable::urlColumn, urls.at(slot));
            Record().multiUrlTable.SetCell(slot, MultiUrlTable::titleColumn, u"Title of "_s + urls.at(slot));
        }
        Record().ShowSlot(0);
    }
    StoreResult Save() { return program->files.SaveProject(QString()); }
    void Reload() { program->files.OpenProject(program->project.path.Base); }

    /// One line a row: address, title, e-mail.
    QStringList Rows() {
        DataControl table(program->databaseFiles, DataControl::Access::ReadOnly);
        table.SetDatabaseName(program->project.path.Base);
        table.SetRecordSource(u"Project"_s);
        EXPECT_TRUE(table.Refresh()) << table.Failure().toStdString();
        QStringList rows;
        for (bool here = table.MoveFirst(); here; here = table.MoveNext())
            rows.append(
                QStringList{table.Text(u"txtURL"_s), table.Text(u"txtTitle"_s), table.Text(u"txtEmail"_s)}
                    .join(u'|'));
        return rows;
    }
    QStringList LoadedUrls() {
        QStringList urls;
        for (int slot = 0; slot < MultiUrlTable::slotCount; ++slot)
            urls.append(Record().multiUrlTable.Cell(slot, MultiUrlTable::urlColumn));
        urls.removeAll(QString());
        return urls;
    }
    ProjectRecord &Record() { return program->project.record; }
};

TEST_F(ProjectRowsTest, OneUrlIsOneRow) {
    Record().txtTitle.SetText(u"Title"_s);
    EXPECT_TRUE(Save().stored);
    EXPECT_TRUE(Save().stored);
    EXPECT_EQ(Rows(), QStringList{u"http://www.page.example/|Title|x"_s});
}

TEST_F(ProjectRowsTest, TheFirstSaveOfSeveralUrlsHoldsTheFirstOneTwice) {
    Save();
    GivenUrls({u"http://a.example/"_s, u"http://b.example/"_s});
    Save();
    EXPECT_EQ(Rows(), (QStringList{u"http://a.example/|Title of http://a.example/|x"_s,
                                   u"http://a.example/|Title of http://a.example/|"_s,
                                   u"http://a.example/|Title of http://a.example/|"_s,
                                   u"http://b.example/|Title of http://b.example/|"_s}));
    Reload();
    EXPECT_TRUE(Record().MultiUrlMode());
    EXPECT_EQ(LoadedUrls(),
              (QStringList{u"http://a.example/"_s, u"http://a.example/"_s, u"http://b.example/"_s}));
    EXPECT_EQ(Record().MultiUrlUpper, 2);
}

TEST_F(ProjectRowsTest, LaterSavesHoldEachUrlOnce) {
    GivenUrls({u"http://a.example/"_s, u"http://b.example/"_s});
    Save();
    GivenUrls({u"http://c.example/"_s, u"http://d.example/"_s, u"http://e.example/"_s});
    Save();
    EXPECT_EQ(Rows(), (QStringList{u"http://c.example/|Title of http://c.example/|x"_s,
                                   u"http://c.example/|Title of http://c.example/|"_s,
                                   u"http://d.example/|Title of http://d.example/|"_s,
                                   u"http://e.example/|Title of http://e.example/|"_s}));
    Reload();
    EXPECT_EQ(LoadedUrls(),
              (QStringList{u"http://c.example/"_s, u"http://d.example/"_s, u"http://e.example/"_s}));
    EXPECT_EQ(Record().HScroll1.Maximum(), 2);
    EXPECT_EQ(Record().HScroll1.Value(), 0);
    EXPECT_EQ(Record().txtURL.Text(), u"http://c.example/"_s);
    EXPECT_TRUE(Record().chkMultiSameDesc.Enabled());
}

TEST_F(ProjectRowsTest, LeavingTheModeKeepsTheRowsAndTheyComeBack) {
    GivenUrls({u"http://a.example/"_s, u"http://b.example/"_s});
    Save();
    Save();
    Record().SetMultiUrlMode(false);
    Save();
    EXPECT_EQ(Rows().size(), 3);
    Reload();
    EXPECT_TRUE(Record().MultiUrlMode());
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

TEST_F(ProjectRowsTest, KeepsWhatAPersonTypesWhateverItIs) {
    const QString odd = u"\u05d0\u202e\u0416\U0001F600 <b>%s%n</b>\t'\"\r\nline"_s;
    Record().txtCompany.SetText(odd);
    Record().Check1.SetValue(1);
    Record().Check3.SetValue(1);
    Save();
    Record().txtCompany.SetText(QString());
    Record().Check1.SetValue(0);
    Reload();
    EXPECT_EQ(Record().txtCompany.Text(), odd);
    EXPECT_EQ(Record().Check1.Value(), 1);
    EXPECT_EQ(Record().Check3.Value(), 1);
}

TEST_F(ProjectRowsTest, StoresTheSelectionByRow) {
    SiteDatabaseBuilder master;
    master.Site(u"A"_s).Site(u"B"_s).Site(QString()).Site(u"D"_s); // the empty name cuts the list short
    GivenMaster(master);
    GivenOpenProject(u"Cut"_s);
    ListBox &list = program->project.lists.List1;
    EXPECT_EQ(list.Items(), (QStringList{u"A"_s, u"B"_s}));
    list.SetSelected(0, false);
    Save();
    Reload();
    EXPECT_FALSE(list.Selected(0));
    EXPECT_TRUE(list.Selected(1));
    EXPECT_EQ(program->project.lists.SiteNames, (QStringList{u"A"_s, u"B"_s}));
}

} // namespace
