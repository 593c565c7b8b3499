#include "tests/submission/run_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class OutcomeTableTest : public RunFixture {
protected:
    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < OutcomeTable::fieldCount; ++column)
            cells += Table().index(row, column).data().toString();
        return cells;
    }
    const OutcomeTable &Table() const { return program->outcomes; }
};

TEST_F(OutcomeTableTest, FollowsTheRunSiteBySite) {
    GivenSites({u"Alta"_s, u"Beta"_s, u"Gamma"_s, u"Delta"_s});
    List1().SetSelected(1, false);
    WhenWaiting([&] {
        EXPECT_EQ(Row(0), (QStringList{u"Alta"_s, u"Waiting"_s, u""_s, u""_s, u""_s}));
        std::vector<int> changedRows;
        QObject::connect(&Table(), &QAbstractItemModel::dataChanged, &Table(),
                         [&](const QModelIndex &first) { changedRows.push_back(first.row()); });
        Answer(2, "404 Not Found");
        EXPECT_EQ(changedRows, std::vector{1});
        QObject::disconnect(&Table(), nullptr, &Table(), nullptr);
        EXPECT_EQ(Row(1),
                  (QStringList{u"Gamma"_s, u"Failed"_s, u"404 Not Found"_s, u"11"_s, u"404 Not Found"_s}));
        Answer(1, "200 OK");
        Run().cmdCancel_Click();
    });
    PressSubmit();
    EXPECT_EQ(Table().rowCount(), 3);
    EXPECT_EQ(Row(0), (QStringList{u"Alta"_s, u"Successful"_s, u"200 OK"_s, u"11"_s, u""_s}));
    EXPECT_EQ(Row(2), (QStringList{u"Delta"_s, u"No verdict"_s, u""_s, u""_s, u"the run was cancelled"_s}));

    program->project.lists.List1.SetItems({u"Other"_s}); // as another project does
    program->project.lists.KeepSiteNames();
    EXPECT_EQ(Row(0).first(), u"Alta"_s);
    program->result.Begin(1);
    EXPECT_EQ(Table().rowCount(), 0);
}

} // namespace
