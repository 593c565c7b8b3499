#include "tests/fakes/program_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SiteChoiceTest : public ProgramFixture {
protected:
    SiteChoiceTest() {
        SiteDatabaseBuilder master;
        master.Site(u"Alta"_s, u"Search Engine"_s);
        master.Site(u"Altavia"_s, u"DIRECTORY"_s).Categories({u"Default"_s, u"Arts"_s, u"Business Arts"_s});
        master.Site(u"Links"_s, u"link list and directory"_s).Categories({u"Only"_s});
        GivenMaster(master);
        GivenOpenProject();
    }

    using Choice = void (SiteSelection::*)();
    QString MarksAfter(Choice choose) {
        (program->siteSelection.*choose)();
        QString marks;
        for (int i = 0; i < 3; ++i)
            marks += Lists().List1.Selected(i) ? u'x' : u'-';
        return marks;
    }
    QString CategoryOf(const QString &directory) {
        Lists().List2.SetText(directory);
        Categories().List2_Click();
        return Lists().List3.Text();
    }
    CategorySelection &Categories() { return program->categorySelection; }
    SiteLists &Lists() { return program->project.lists; }
};

TEST_F(SiteChoiceTest, RegisteredLooksForTheNameAnywhereInTheSuccesses) {
    EXPECT_EQ(MarksAfter(&SiteSelection::mnuEngReg_Click), u"---"_s);
    EXPECT_EQ(MarksAfter(&SiteSelection::mnuEngNot_Click), u"xxx"_s);
    RunResult result;
    result.AddSuccess(u"ALTAVIA"_s, 1); // "Alta" is part of it and counts as registered, too
    ASSERT_TRUE(program->statistics.AppendSessionRow(result));
    EXPECT_EQ(MarksAfter(&SiteSelection::mnuEngReg_Click), u"xx-"_s);
    EXPECT_EQ(MarksAfter(&SiteSelection::mnuEngNot_Click), u"--x"_s);
}

TEST_F(SiteChoiceTest, ADirectoryClickedInAWalkDoesNotMixTheTablesUp) {
    queue.AtYield(1, [&] { CategoryOf(u"Altavia"_s); });              // moves the control to another table
    EXPECT_EQ(MarksAfter(&SiteSelection::mnuEngDir_Click), u"-xx"_s); // by a part of the kind, in any case
    EXPECT_EQ(MarksAfter(&SiteSelection::mnuEngEng_Click), u"x--"_s);
    Lists().List5.SetSelected(7, false); // all three lists are counted
    EXPECT_EQ(Lists().lblSelected.Caption(), u"Selected 21/24"_s);
}

TEST_F(SiteChoiceTest, ShowsAndStoresTheCategoryOfADirectory) {
    EXPECT_EQ(CategoryOf(u"Altavia"_s), QString());
    EXPECT_EQ(Lists().List3.Items(), (QStringList{u"Arts"_s, u"Business Arts"_s}));
    Lists().List3.SetListIndex(1);
    EXPECT_TRUE(Categories().ChooseCategory());
    EXPECT_EQ(CategoryOf(u"Links"_s), QString());
    EXPECT_EQ(Lists().List3.ListCount(), 0); // its only category is the default, which isn't offered

    StartProgram(); // stored at once, without a save
    program->files.OpenProject(home.filePath(u"Projects/Project1.rts"_s));
    EXPECT_EQ(CategoryOf(u"Altavia"_s), u"Business Arts"_s);
}

TEST_F(SiteChoiceTest, AKeywordChoosesForEveryDirectory) {
    const struct {
        QString keyword, altavia, links;
    } steps[] = {
        {u"nothing"_s, u"Default"_s, u"Only"_s},
        {u"ART"_s, u"Arts"_s, u"Only"_s},
        {u"only"_s, u"Arts"_s, u"Only"_s}, // a choice stays without a match
        {u"business"_s, u"Business+Arts"_s, u"Only"_s},
        {u""_s, u"Arts"_s, u"Only"_s},
    };
    for (const auto &step : steps) {
        program->project.record.txttrazim.SetText(step.keyword);
        Categories().Command13_Click();
        EXPECT_EQ(program->collector.data_parsiraj_query_kategorije(u"Altavia"_s), step.altavia);
        EXPECT_EQ(program->collector.data_parsiraj_query_kategorije(u"Links"_s), step.links);
    }
    EXPECT_EQ(program->collector.data_parsiraj_query_kategorije(u"Nowhere"_s), QString());
}

} // namespace
