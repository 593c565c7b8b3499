#include "tests/fakes/program_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class StatisticsTest : public ProgramFixture {
protected:
    StatisticsTest() { GivenSites({u"Alta"_s, u"Beta"_s}); }

    void GivenSession(const QStringList &successful, const QStringList &failed, int seconds = 7) {
        RunResult result;
        result.Begin(2);
        for (const QString &name : successful)
            result.AddSuccess(name, 0);
        for (const QString &name : failed)
            result.AddFailure(name, 0);
        result.elapsedSeconds = seconds;
        ASSERT_TRUE(Stats().AppendSessionRow(result));
    }
    QString Cell(int row, int column) {
        return Stats().DBGrid1.data(Stats().DBGrid1.index(row, column), Qt::DisplayRole).toString();
    }
    /// Sessions, and the registrations that succeeded, failed, and both.
    QString Captions() {
        return QStringList{Stats().Label42.Caption(), Stats().Label44.Caption(), Stats().Label45.Caption(),
                           Stats().Label46.Caption()}
            .join(u' ');
    }
    Statistics &Stats() { return program->statistics; }
};

TEST_F(StatisticsTest, ShowsSessionsWithTheirTotals) {
    Stats().Label47.SetCaption(u"before"_s);
    Stats().cmdOrder_Click();
    EXPECT_EQ(Captions(), u"0 0 0 0"_s);
    EXPECT_EQ(Stats().Label47.Caption(), u"before"_s); // without a session the last date stays
    GivenSession({u"Alta"_s, u"Beta"_s}, {});
    clock.Advance(std::chrono::hours(1));
    GivenSession({}, {u"Alta"_s}, -86000);
    Stats().cmdOrder_Click();
    EXPECT_EQ(Captions(), u"2 2 1 3"_s);
    EXPECT_EQ(program->frame.ShownPane(), Pane::FraSta);
    ASSERT_EQ(Stats().DBGrid1.rowCount(), 2);
    EXPECT_EQ(Stats().Label47.Caption(), Cell(1, 0));
    EXPECT_TRUE(Cell(0, 0).contains(u", "_s));
    EXPECT_NE(Cell(0, 0), Cell(1, 0));
    const QStringList first{u"http://www.page.example/"_s, u"x"_s, u"2"_s, u"2"_s, u"0"_s, u"7"_s,
                            u"Alta\r\nBeta\r\n"_s,         u""_s};
    for (int column = 1; column < SessionGrid::fieldCount; ++column)
        EXPECT_EQ(Cell(0, column), first.at(column - 1));
    EXPECT_EQ(Cell(1, 6) + Cell(1, 8), u"-86000Alta\r\n"_s);
    EXPECT_EQ(Stats().DBGrid1.data(Stats().DBGrid1.index(0, 7), Qt::ToolTipRole), u"<p>Alta, Beta</p>"_s);
}

TEST_F(StatisticsTest, ClearAsksAndThePaneFollowsWhenItOpensAgain) {
    GivenSession({u"Alta"_s}, {});
    Stats().cmdOrder_Click();
    dialogs.answers = {BoxAnswer::No, BoxAnswer::Yes};
    Stats().Command10_Click();
    EXPECT_EQ(Stats().DBGrid1.rowCount(), 1);
    Stats().Command10_Click();
    EXPECT_EQ(dialogs.boxes.back().text, u"Are you sure you want to delete project statistics ?"_s);
    EXPECT_EQ(dialogs.boxes.back().defaultAnswer, BoxAnswer::No);
    EXPECT_EQ(Stats().DBGrid1.rowCount(), 0);
    EXPECT_EQ(Captions(), u"1 1 0 1"_s);
    Stats().cmdOrder_Click();
    EXPECT_EQ(Captions(), u"0 0 0 0"_s);

    // The commands that need the sites turn the control back from the statistics.
    program->siteSelection.mnuEngNot_Click();
    EXPECT_EQ(program->project.lists.List1.SelCount(), 2);

    GivenSession({u"Alta"_s}, {});
    GivenOpenProject(u"Other"_s);
    Stats().cmdOrder_Click();
    EXPECT_EQ(Captions(), u"0 0 0 0"_s);
    program->files.OpenProject(home.filePath(u"Projects/Project1.rts"_s));
    Stats().cmdOrder_Click();
    EXPECT_EQ(Captions(), u"1 1 0 1"_s);
}

} // namespace
