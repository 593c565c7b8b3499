#include "tests/database/database_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class DataControlTest : public DatabaseFixture {
protected:
    const QString visits = u"Number of visits"_s;
    const QString note = u"Note"_s;
};

TEST_F(DataControlTest, WalksInStoredOrderAndAddsBehindTheLastRow) {
    GivenRows({u"Gamma"_s, u"Alta"_s, u"Beta"_s});
    EXPECT_TRUE(control.MoveTo(1));
    EXPECT_TRUE(control.Delete());
    EXPECT_FALSE(control.HasRow());
    EXPECT_FALSE(control.Delete());
    Add(control, u"Delta"_s);
    EXPECT_EQ(control.Text(nameField), u"Delta"_s);
    EXPECT_EQ(Names(control), QStringList({u"Gamma"_s, u"Beta"_s, u"Delta"_s}));
    EXPECT_EQ(StoredNames(), Names(control));
    EXPECT_FALSE(control.MoveTo(3));
    EXPECT_EQ(control.Text(nameField), QString());
}

TEST_F(DataControlTest, ReadsEveryTypeAsTextNumberAndBoolean) {
    GivenRows({u"12 s"_s});
    EXPECT_EQ(control.Number(nameField), 12);
    EXPECT_TRUE(control.IsNull(note));
    EXPECT_EQ(control.Text(note), QString());
    control.Edit();
    control.SetBoolean(visits, true);
    control.SetText(note, u"9e99"_s + QString(300000, u'x'));
    control.SetText(nameField, QString());
    EXPECT_FALSE(control.SetText(nameField, u"ninechars"_s));
    EXPECT_EQ(control.Failure(), u"The text is too long for the field \"Name\"."_s);
    control.Update();
    control.Refresh();
    EXPECT_EQ(control.Text(visits), u"-1"_s);
    EXPECT_TRUE(control.Boolean(visits));
    EXPECT_EQ(control.Number(note), 2147483647);
    EXPECT_EQ(control.Text(note).size(), 300004);
    EXPECT_EQ(control.Text(nameField), QString());
    EXPECT_FALSE(control.IsNull(nameField));
}

TEST_F(DataControlTest, ARowWithoutUpdateReadsAsSetAndIsDroppedByTheNextMove) {
    GivenRows({u"Alta"_s});
    control.AddNew();
    EXPECT_EQ(control.Text(nameField), QString());
    control.SetText(note, control.Text(note) + u"one"_s);
    control.SetText(note, control.Text(note) + u"two"_s);
    EXPECT_EQ(control.Text(note), u"onetwo"_s);
    control.MoveFirst();
    EXPECT_EQ(control.Text(note), QString());
    EXPECT_FALSE(control.SetText(nameField, u"Delta"_s));
    EXPECT_FALSE(control.Update());
    EXPECT_EQ(StoredNames(), QStringList({u"Alta"_s}));
}

TEST_F(DataControlTest, SeesWhatAnotherControlCommits) {
    GivenRows({u"Alta"_s, u"Beta"_s});
    Bind(second);
    second.Edit();
    second.SetText(nameField, u"Omega"_s);
    EXPECT_EQ(control.Text(nameField), u"Alta"_s);
    second.Update();
    EXPECT_EQ(control.Text(nameField), u"Omega"_s);
    Add(second, u"Gamma"_s);
    EXPECT_EQ(control.RowCount(), 3);
    second.MoveFirst();
    second.Delete();
    EXPECT_FALSE(control.HasRow());
    EXPECT_EQ(control.Text(nameField), QString());
    EXPECT_TRUE(control.MoveNext());
    EXPECT_EQ(control.Text(nameField), u"Beta"_s);
}

TEST_F(DataControlTest, AReadOnlyControlChangesNothingAndCloseReleasesTheFile) {
    DataControl reader(files, DataControl::Access::ReadOnly);
    Bind(reader);
    EXPECT_FALSE(reader.AddNew());
    Bind(second);
    EXPECT_TRUE(Add(second, u"Beta"_s));
    EXPECT_TRUE(reader.MoveFirst());
    EXPECT_FALSE(reader.Edit() || reader.Delete());
    EXPECT_EQ(Names(reader), QStringList({u"Beta"_s}));
    second.Close();
    EXPECT_FALSE(second.Edit());
    reader.Close();
    EXPECT_EQ(FilesLeft(), QStringList({u"sites.rts"_s}));
    EXPECT_TRUE(second.Refresh());
    EXPECT_EQ(second.RowCount(), 1);
}

TEST_F(DataControlTest, NothingIsBoundWithoutAFileOrATable) {
    EXPECT_FALSE(control.Refresh());
    control.SetDatabaseName(Path(u"missing.rts"_s));
    EXPECT_FALSE(control.Refresh());
    EXPECT_FALSE(QFile::exists(Path(u"missing.rts"_s)));
    EXPECT_FALSE(Bind(control, u"sites"_s));
    EXPECT_EQ(control.Failure(), u"The database has no table \"sites\"."_s);
    EXPECT_TRUE(Bind(control));
    QFile::remove(Path());
    EXPECT_FALSE(control.Refresh());
    control.SetDatabaseName(QString());
    EXPECT_EQ(control.DatabaseName(), QString());
    EXPECT_FALSE(control.Refresh());
    EXPECT_EQ(control.RowCount(), 0);
}

TEST_F(DataControlTest, PathsMayHoldWhatAddressesEscape) {
    const QString odd = Path(u"50% of #1?mode=memory & more.rts"_s);
    QFile::copy(Path(), odd);
    control.SetDatabaseName(odd);
    control.SetRecordSource(u"Sites"_s);
    ASSERT_TRUE(control.Refresh() && Add(control, u"Alta"_s));
    control.Close();
    EXPECT_TRUE(BytesOf(odd).contains("Alta"));
}
} // namespace
