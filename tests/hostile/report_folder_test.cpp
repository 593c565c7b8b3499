#include "reports/site_pages.h"
#include "support/code_page.h"
#include "support/whole_file.h"
#include "tests/file_bytes.h"
#include "tests/hostile/hostile_texts.h"
#include "tests/submission/run_fixture.h"

#include <QDirIterator>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class ReportFolderTest : public RunFixture {
protected:
    const QStringList ownFiles{u"Projects/Project1.rts"_s, u"Projects/Project1/report.htm"_s, u"ng.dll"_s};

    /// Every file below the program's folder that isn't a page of the report.
    QStringList FilesBesidePages() const {
        QStringList files;
        QDirIterator entries(home.path(), QDir::Files | QDir::Hidden | QDir::System,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString file = entries.next();
            if (!file.startsWith(program->result.reportFolder))
                files << QDir(home.path()).relativeFilePath(file);
        }
        files.sort();
        return files;
    }
};

TEST_F(ReportFolderTest, HoldsAllThatHostileNamesLeaveBehind) {
    GivenSites(HostileTexts());
    List1().SetSelected(0, false);
    SubmitAnswered("302 Found"); // first the client writes a page, then the program
    EXPECT_EQ(FilesBesidePages(), ownFiles);
    const QByteArray report = BytesOf(Result().reportFile);
    QStringList pages{u".htm"_s}; // of the empty name behind the list of sites that were not selected
    for (const QString &name : HostileTexts()) {
        EXPECT_TRUE(report.contains('>' + CodePage::Encode(name) + '<')) << name.toStdString();
        if (CanHavePage(name))
            pages << name + u".htm"_s;
    }
    pages.sort();
    QStringList found = QDir(Result().reportFolder).entryList(QDir::Files | QDir::Hidden);
    found.sort();
    EXPECT_EQ(found, pages);
    EXPECT_EQ(Result().SuccessfulCount(), HostileTexts().size() - 1);
}

TEST_F(ReportFolderTest, TakesTheWordsOfAHostileServerAsWords) {
    GivenSites({u"Site"_s});
    WhenWaiting([this] { Answer(1, "404 \x1B[2J%s<b>{SITE}\x9B"); });
    PressSubmit();
    EXPECT_EQ(Outcome(0).reason, u"404 \x1B[2J%s<b>{SITE}\u203A"_s);
    WhenWaiting([this] { Answer(1, "302 Found", "Location: ../../<b>%1{SITE}\x1B\x01\r\n"); });
    PressSubmit();
    EXPECT_TRUE(ReadPage(u"Site"_s).contains(u"<a href=../../<b>%1{SITE}\x1B\x01>Site</a>"_s));
    EXPECT_EQ(FilesBesidePages(), ownFiles);
}

TEST_F(ReportFolderTest, PutsFilesInThePlaceOfLinks) {
    GivenSites({u"Sent"_s, u"Left out"_s});
    List1().SetSelected(1, false);
    const QString outside = home.filePath(u"outside.txt"_s);
    ASSERT_TRUE(WriteWholeFile(outside, "precious"));
    ASSERT_TRUE(QDir().mkpath(home.filePath(u"Projects/Project1/report"_s)));
    const QStringList links{u"Projects/Project1/report.htm"_s, u"Projects/Project1/report/Sent.htm"_s,
                            u"Projects/Project1/report/Left out.htm"_s, u"Projects/Project1/report/.htm"_s};
    for (const QString &link : links)
        ASSERT_TRUE(QFile::link(outside, home.filePath(link)));
    SubmitAnswered("302 Found");
    EXPECT_EQ(BytesOf(outside), "precious");
    for (const QString &link : links)
        EXPECT_FALSE(QFileInfo(home.filePath(link)).isSymLink()) << link.toStdString();
    EXPECT_TRUE(ReadPage(u"Sent"_s).contains(u"Your entry has been submitted!"_s));
}

} // namespace
