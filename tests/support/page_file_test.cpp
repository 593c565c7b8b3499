#include "support/page_file.h"
#include "tests/file_bytes.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class PageFileTest : public testing::Test {
protected:
    /// What the page holds once these pieces were written to it.
    QByteArray Written(const QByteArrayList &pieces) {
        PageFile file;
        file.Open(path);
        for (const QByteArray &piece : pieces)
            file.Write(piece);
        file.Close();
        return BytesOf(path);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"page.htm"_s);
    QByteArray name = QFile::encodeName(path);
};

TEST_F(PageFileTest, LeavesNothingOfThePageBefore) {
    EXPECT_EQ(Written({"a page of ", "two pieces"}), "a page of two pieces");
    EXPECT_EQ(Written({"short"}), "short");
    EXPECT_EQ(Written({"", "longer ", "than before"}), "longer than before");
    EXPECT_EQ(Written({}), "");
}

TEST_F(PageFileTest, LeavesThePageOpenedLastWholeOfTwoAtOneName) {
    PageFile first;
    first.Open(path);
    first.Write("begun ");
    EXPECT_EQ(Written({"whole"}), "whole");
    first.Write("and gone on with");
    EXPECT_EQ(BytesOf(path), "whole");
}

TEST_F(PageFileTest, WritesThroughNoLink) {
    const QByteArray outside = QFile::encodeName(folder.filePath(u"outside"_s));
    for (const auto makeLink : {&::symlink, &::link}) {
        QFile precious(QFile::decodeName(outside));
        ASSERT_TRUE(precious.open(QIODevice::WriteOnly) && precious.write("precious") == 8);
        precious.close();
        ::unlink(name.constData());
        ASSERT_EQ(makeLink(outside.constData(), name.constData()), 0);
        EXPECT_EQ(Written({"page"}), "page");
        EXPECT_EQ(BytesOf(precious.fileName()), "precious");
    }
}

TEST_F(PageFileTest, TakesThePlaceOfWhatIsNoPlainFile) {
    ASSERT_EQ(::mkfifo(name.constData(), 0600), 0); // opening it would wait for a reader
    EXPECT_EQ(Written({"page"}), "page");
}

} // namespace
