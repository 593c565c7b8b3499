#include "support/whole_file.h"
#include "tests/fakes/program_fixture.h"
#include "tests/file_bytes.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class Top9PageTest : public ProgramFixture {
protected:
    Top9PageTest() {
        GivenHosts(BytesOf(QStringLiteral(LANTERRA_DATA_DIR "/hosts.ini")));
        GivenSites({u"Alta"_s});
        Record().txtURL.SetText(u"http://a.example/?a&b {E}"_s);
        Record().multiUrlTable.SetCell(2, MultiUrlTable::urlColumn, u"http://slot.example/"_s);
    }

    QByteArray Written() {
        EXPECT_TRUE(program->top9Page.WriteTop9Page());
        EXPECT_EQ(documents.opened.back().arguments, QStringList(program->top9Page.Path()));
        return BytesOf(InProjects(u"Project1/top9single.htm"_s));
    }
};

TEST_F(Top9PageTest, IsTheGoldenPageByteForByte) {
    Record().txtName1.SetText(u"Ann"_s);
    EXPECT_EQ(Written(), BytesOf(QStringLiteral(GOLDEN_FOLDER "/top9single.htm")));
}

TEST_F(Top9PageTest, AFrameIsPrintedIfItsEngineIsOnAndALinkAlways) {
    for (int &check : program->top9Page.checks)
        check = 0;
    const QByteArray none = Written();
    EXPECT_EQ(none.count("<frame name="), 1);
    EXPECT_TRUE(none.contains("<frame name=\"1\" src=\"http://127.0.0.1:8571/submit/top9.htm\" "));
    EXPECT_TRUE(none.contains("border=1>\r\n</frameset>\r\n<frameset"));
    EXPECT_EQ(none.count("\">Submit to "), 9);
    program->top9Page.checks[u"webcrawler"_s] = 1;
    EXPECT_TRUE(Written().contains("<frame name=\"10\" src=\"http://127.0.0.1:8571/webcrawler/"));
}

TEST_F(Top9PageTest, IsToldInTheNoticeIfItCannotBeWritten) {
    ASSERT_TRUE(WriteWholeFile(InProjects(u"Project1"_s), "in the way of the folder"));
    EXPECT_FALSE(program->top9Page.WriteTop9Page());
    EXPECT_EQ(program->frame.Notice.Caption(),
              u"The page could not be written: "_s + program->top9Page.Path());
}

TEST_F(Top9PageTest, ItsBodyTakesTheUrlOfASlotAndLeavesTheFileOpen) {
    const QString path = home.filePath(u"body"_s);
    WholeFile file(path);
    EXPECT_TRUE(file.Write("before\r\n"));
    EXPECT_TRUE(program->top9Page.WriteTop9Body(2, file));
    EXPECT_TRUE(file.Write("after"));
    EXPECT_TRUE(file.Commit());
    Record().txtURL.SetText(u"http://slot.example/"_s);
    EXPECT_EQ(BytesOf(path), "before\r\n" + Written() + "after");
}

} // namespace
