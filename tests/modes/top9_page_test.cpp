#include "support/whole_file.h"
#include "tests/fakes/program_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class Top9PageTest : public ProgramFixture {
protected:
    Top9PageTest() {
        EXPECT_TRUE(
            CopyWholeFile(QStringLiteral(LANTERRA_DATA_DIR "/hosts.ini"), home.filePath(u"hosts.ini"_s)));
        GivenSites({u"Alta"_s});
        program->project.record.txtURL.SetText(u"http://a.example/?a&b {E}"_s);
        program->project.record.multiUrlTable.SetCell(2, MultiUrlTable::urlColumn, u"http://slot.example/"_s);
    }

    static QByteArray Read(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QByteArray Written() {
        EXPECT_TRUE(program->top9Page.WriteTop9Page());
        EXPECT_EQ(documents.opened.back().arguments, QStringList(program->top9Page.Path()));
        return Read(home.filePath(u"Projects/Project1/top9single.htm"_s));
    }
};

TEST_F(Top9PageTest, IsTheGoldenPageByteForByte) {
    program->project.record.txtName1.SetText(u"Ann"_s);
    EXPECT_EQ(Written(), Read(QStringLiteral(GOLDEN_FOLDER "/top9single.htm")));
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
    ASSERT_TRUE(WriteWholeFile(home.filePath(u"Projects/Project1"_s), "in the way of the folder"));
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
    program->project.record.txtURL.SetText(u"http://slot.example/"_s);
    EXPECT_EQ(Read(path), "before\r\n" + Written() + "after");
}

} // namespace
