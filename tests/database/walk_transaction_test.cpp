#include "tests/database/database_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class WalkTransactionTest : public DatabaseFixture {
protected:
    WalkTransactionTest() { GivenRows({u"Alta"_s, u"Beta"_s}); }

    static bool Rename(DataControl &bound, const QString &name) {
        return bound.Edit() && bound.SetText(nameField, name) && bound.Update();
    }

    const QStringList before{u"Alta"_s, u"Beta"_s};
};

TEST_F(WalkTransactionTest, StoresTheRowsOfAllControlsWhenTheOutermostWalkEnds) {
    Bind(second);
    WalkTransaction walk(control);
    {
        const WalkTransaction inner(second);
        EXPECT_TRUE(Rename(second, u"Omega"_s));
        EXPECT_TRUE(Add(control, u"Gamma"_s));
    }
    EXPECT_EQ(Names(second), QStringList({u"Omega"_s, u"Beta"_s, u"Gamma"_s}));
    EXPECT_EQ(StoredNames(), before);
    EXPECT_TRUE(walk.Commit());
    EXPECT_EQ(StoredNames(), QStringList({u"Omega"_s, u"Beta"_s, u"Gamma"_s}));
}

TEST_F(WalkTransactionTest, CloseStoresWhatWasReachedAndTheWalkGoesOnInOtherControls) {
    Bind(second);
    WalkTransaction walk(control);
    Rename(control, u"Omega"_s);
    control.Close();
    EXPECT_TRUE(Add(second, u"Gamma"_s));
    EXPECT_EQ(StoredNames(), QStringList({u"Omega"_s, u"Beta"_s}));
    EXPECT_TRUE(walk.Commit());
    EXPECT_EQ(StoredNames(), QStringList({u"Omega"_s, u"Beta"_s, u"Gamma"_s}));
}

TEST_F(WalkTransactionTest, ACommitThatMeetsAReaderLeavesAllRowsAsTheyWere) {
    Bind(second);
    SqliteConnection stranger(Path(), SqliteConnection::Mode::ReadOnly);
    QSqlQuery *reading = stranger.Execute(u"SELECT * FROM Sites"_s);
    ASSERT_TRUE(reading && stranger.Next(*reading));
    WalkTransaction walk(control);
    EXPECT_TRUE(Rename(control, u"Omega"_s));
    EXPECT_TRUE(Add(second, u"Gamma"_s));
    EXPECT_FALSE(walk.Commit());
    EXPECT_EQ(control.Failure(), u"The file is in use by another program."_s);
    EXPECT_EQ(Names(control), before);
    EXPECT_EQ(Names(second), before);
    reading->finish();
    EXPECT_EQ(StoredNames(), before);
    EXPECT_TRUE(Add(control, u"Delta"_s));
}

TEST_F(WalkTransactionTest, ALockedFileFailsTheWholeWalkAtOnce) {
    SqliteConnection stranger(Path(), SqliteConnection::Mode::ReadWrite);
    ASSERT_TRUE(stranger.Run(u"BEGIN IMMEDIATE"_s));
    WalkTransaction walk(control);
    EXPECT_FALSE(Rename(control, u"Omega"_s));
    stranger.Run(u"ROLLBACK"_s);
    control.MoveLast();
    EXPECT_FALSE(Rename(control, u"Sigma"_s)) << "half a walk must not be stored";
    EXPECT_FALSE(walk.Commit());
    EXPECT_EQ(Names(control), before);
    EXPECT_EQ(StoredNames(), before);
}

} // namespace
