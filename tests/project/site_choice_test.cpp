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
    QString Marks() const {
        QString marks;
        for (int i = 0; i < 3; ++i)
            marks += program->project.lists.List1.Selected(i) ? u'x' : u'-';
        return marks;
    }
    QString Choice(const QString &directory) {
        program->project.lists.List2.SetText(directory);
        program->categorySelection.List2_Click();
        return program->project.lists.List3.Text();
    }
    SiteSelection &Selection() { return program->siteSelection; }
    CategorySelection &Categories() { return program->categorySelection; }
    SiteLists &Lists() { return program->project.lists; }
};

TEST_F(SiteChoiceTest, FiltersReplaceTheSelection) {
    Selection().mnuEngDir_Click();
    EXPECT_EQ(Marks(), u"-xx"_s);
    Selection().mnuEngEng_Click();
    EXPECT_EQ(Marks(), u"x--"_s);
    Selection().mnuEngLnk_Click();
    EXPECT_EQ(Marks(), u"--x"_s);
    Selection().Command6_Click();
    EXPECT_EQ(Marks(), u"xx-"_s);
    Selection().Command4_Click();
    EXPECT_EQ(Marks(), u"xxx"_s);
    Selection().Command3_Click();
    EXPECT_EQ(Marks(), u"---"_s);
}

TEST_F(SiteChoiceTest, RegisteredLooksForTheNameAnywhereInTheSuccesses) {
    Selection().mnuEngReg_Click();
    EXPECT_EQ(Marks(), u"---"_s);
    Selection().mnuEngNot_Click();
    EXPECT_EQ(Marks(), u"xxx"_s);
    RunResult result;
    result.AddSuccess(u"ALTAVIA"_s, 1); // "Alta" is part of it and counts as registered, too
    ASSERT_TRUE(program->statistics.AppendSessionRow(result));
    Selection().mnuEngReg_Click();
    EXPECT_EQ(Marks(), u"xx-"_s);
    Selection().mnuEngNot_Click();
    EXPECT_EQ(Marks(), u"--x"_s);
}

TEST_F(SiteChoiceTest, CountsTheMarksOfAllThreeLists) {
    EXPECT_EQ(Lists().lblSelected.Caption(), u"Selected 24/24"_s);
    Selection().Command3_Click();
    EXPECT_EQ(Lists().lblSelected.Caption(), u"Selected 21/24"_s);
    Lists().List5.SetSelected(7, false);
    EXPECT_EQ(Lists().lblSelected.Caption(), u"Selected 20/24"_s);
    EXPECT_EQ(Lists().List5.Items().last(), u"What's New"_s);
    EXPECT_EQ(Lists().lstTopEngines.Items().last(), u"WhatUSeek"_s);
}

TEST_F(SiteChoiceTest, ADirectoryClickedInAWalkDoesNotMixTheTablesUp) {
    queue.AtYield(1, [&] { Choice(u"Altavia"_s); }); // moves the control to another table
    Selection().mnuEngDir_Click();
    EXPECT_EQ(Marks(), u"-xx"_s);
}

TEST_F(SiteChoiceTest, ShowsAndStoresTheCategoryOfADirectory) {
    EXPECT_EQ(Choice(u"Altavia"_s), QString());
    EXPECT_EQ(Lists().List3.Items(), (QStringList{u"Arts"_s, u"Business Arts"_s}));
    Lists().List3.SetListIndex(1);
    EXPECT_TRUE(Categories().ChooseCategory());
    EXPECT_EQ(Choice(u"Links"_s), QString());
    EXPECT_EQ(Lists().List3.ListCount(), 0); // its only category is the default, which isn't offered

    StartProgram(); // stored at once, without a save
    program->files.OpenProject(home.filePath(u"Projects/Project1.rts"_s));
    EXPECT_EQ(Choice(u"Altavia"_s), u"Business Arts"_s);
}

TEST_F(SiteChoiceTest, AKeywordChoosesForEveryDirectory) {
    const auto stored = [&](const QString &directory) {
        return program->collector.data_parsiraj_query_kategorije(directory);
    };
    EXPECT_TRUE(Categories().SelectByKeyword(u"nothing"_s));
    EXPECT_EQ(stored(u"Altavia"_s), u"Default"_s);
    EXPECT_EQ(stored(u"Links"_s), u"Only"_s);
    program->project.record.txttrazim.SetText(u"ART"_s);
    Categories().Command13_Click();
    EXPECT_EQ(stored(u"Altavia"_s), u"Arts"_s); // the first match
    EXPECT_TRUE(Categories().SelectByKeyword(u"only"_s));
    EXPECT_EQ(stored(u"Altavia"_s), u"Arts"_s); // a choice stays without a match
    EXPECT_TRUE(Categories().SelectByKeyword(u"business"_s));
    EXPECT_EQ(stored(u"Altavia"_s), u"Business+Arts"_s);
    EXPECT_TRUE(Categories().SelectByKeyword(QString()));
    EXPECT_EQ(stored(u"Altavia"_s), u"Arts"_s); // an empty keyword occurs in the first one offered
    EXPECT_EQ(stored(u"Nowhere"_s), QString());
}

} // namespace
