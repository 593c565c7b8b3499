#include "tests/submission/run_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

const QString tenMegabytes(10LL * 1024 * 1024, u'x');

class TenMegabytesTest : public RunFixture {
protected:
    int YieldsOfASave() {
        const int before = queue.Yields();
        program->files.mnuFileSave_Click();
        return queue.Yields() - before;
    }
};

TEST_F(TenMegabytesTest, InAFieldAreCutOrRefusedAsALongTextIs) {
    GivenSites({u"Alta"_s});
    const int usual = YieldsOfASave();
    for (const ProjectRecord::TextField &field : Record().TextFields())
        field.box->SetText(tenMegabytes);
    EXPECT_EQ(YieldsOfASave(), usual);
    program->files.LoadProject();
    EXPECT_EQ(Record().txtDesc.Text(), tenMegabytes.first(255));
    EXPECT_EQ(Record().txtURL.Text(), u"http://www.page.example/"_s);
    EXPECT_EQ(Record().txtKey[0].Text(), u"x"_s);
}

TEST_F(TenMegabytesTest, OfANameAndATemplateGoTheirWayAndLeaveNoPage) {
    SiteDatabaseBuilder master;
    master.Site(tenMegabytes, u"directory"_s)
        .Query(u"\"x="_s + tenMegabytes + u"&c=\" & CCCAAATTT"_s)
        .Categories({u"Other"_s, tenMegabytes});
    GivenMaster(master);
    GivenOpenProject();
    ASSERT_TRUE(program->categorySelection.SelectByKeyword(QString()));
    EverySiteAnswers("200 OK");
    const int before = queue.Yields();
    PressSubmit();
    EXPECT_LT(queue.Yields() - before, 100);
    EXPECT_EQ(Successful(), QStringList{tenMegabytes});
    EXPECT_EQ(Client(1).Target().size(), u"http://127.0.0.1/add?x=&c="_s.size() + 2 * tenMegabytes.size());
    EXPECT_EQ(QDir(Result().reportFolder).entryList(QDir::Files | QDir::Hidden), QStringList{u".htm"_s});
}

} // namespace
