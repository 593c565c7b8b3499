#include "support/text_file.h"
#include "support/whole_file.h"
#include "tests/file_bytes.h"
#include "tests/qt_printing.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class WholeFileTest : public testing::Test {
protected:
    WholeFileTest() { WriteWholeFile(path, "old"); }

    QStringList Entries() const {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"page.htm"_s);
};

TEST_F(WholeFileTest, TakesThePlaceOfTheOldFileAtCommitOnly) {
    {
        WholeFile dropped(path);
        EXPECT_TRUE(dropped.Write("dropped"));
    }
    WholeFile file(path);
    EXPECT_TRUE(file.Write("new "));
    EXPECT_TRUE(file.Write("text"));
    EXPECT_EQ(BytesOf(path), QByteArray("old"));
    EXPECT_TRUE(file.Commit());
    EXPECT_EQ(BytesOf(path), QByteArray("new text"));
    EXPECT_EQ(Entries(), QStringList{u"page.htm"_s});
}

TEST_F(WholeFileTest, ReplacesALinkAndGivesOrdinaryPermissions) {
    const mode_t old = umask(022);
    const QString link = folder.filePath(u"link.htm"_s);
    QFile::link(path, link);
    EXPECT_TRUE(WriteWholeFile(link, "new"));
    EXPECT_EQ(BytesOf(path), QByteArray("old"));
    EXPECT_EQ(BytesOf(link), QByteArray("new"));
    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_EQ(int(QFile::permissions(link)), 0x6644);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_TRUE(WriteWholeFile(path, "new"));
    EXPECT_EQ(int(QFile::permissions(path)), 0x6600);
    EXPECT_EQ(Entries(), (QStringList{u"link.htm"_s, u"page.htm"_s}));
    umask(old);
}

TEST_F(WholeFileTest, CopiesAFileButNeverOntoItself) {
    const QString copy = folder.filePath(u"copy"_s);
    const QByteArray large(200'000, 'x');
    WriteWholeFile(path, large);
    EXPECT_TRUE(CopyWholeFile(path, copy));
    EXPECT_EQ(BytesOf(copy), large);
    EXPECT_FALSE(CopyWholeFile(path, folder.path() + u"/./page.htm"_s));
    EXPECT_FALSE(CopyWholeFile(folder.path(), copy));
    EXPECT_EQ(BytesOf(copy), large);
}

TEST_F(WholeFileTest, TextGoesThroughTheCodePage) {
    EXPECT_TRUE(WriteFileText(path, u"5 €\r\nΩ"_s));
    EXPECT_EQ(BytesOf(path), QByteArray("5 \x80\r\n?"));
    EXPECT_EQ(ReadFileText(path), u"5 €\r\n?"_s);
}

} // namespace
