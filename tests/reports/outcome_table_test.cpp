#include "tests/submission/run_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class OutcomeTableTest : public RunFixture {
protected:
    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < OutcomeTable::fieldCount; ++column)
            cells += program->outcomes.index(row, column).data().toString();
        return cells;
    }
};

TEST_F(OutcomeTableTest, FollowsTheRunSiteBySite) {
    GivenSites({u"Alta"_s, u"Beta"_s, u"Gamma"_s, u"Delta"_s});
    List1().SetSelected(1, false);
    QList<int> changed;
    QObject::connect(&program->outcomes, &QAbstractItemModel::dataChanged,
                     [&](const QModelIndex &first) { changed += first.row(); });
    WhenWaiting([&] {
        EXPECT_EQ(Row(0), (QStringList{u"Alta"_s, u"Waiting"_s, u""_s, u""_s, u""_s}));
        Answer(2, "404 Not Found");
        EXPECT_EQ(changed, QList{1});
        Answer(1, "200 OK");
        Run().cmdCancel_Click();
    });
    PressSubmit();
    program->project.lists.SiteNames = {u"Other"_s}; // as another project does
    EXPECT_EQ(program->outcomes.rowCount(), 3);
    const QString notFound = u"404 Not Found"_s;
    EXPECT_EQ(Row(0), (QStringList{u"Alta"_s, u"Successful"_s, u"200 OK"_s, u"11"_s, u""_s}));
    EXPECT_EQ(Row(1), (QStringList{u"Gamma"_s, u"Failed"_s, notFound, u"11"_s, notFound}));
    EXPECT_EQ(Row(2), (QStringList{u"Delta"_s, u"No verdict"_s, u""_s, u""_s, u"the run was cancelled"_s}));
}

} // namespace
