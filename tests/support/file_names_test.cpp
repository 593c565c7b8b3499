#include "support/file_names.h"
#include "support/whole_file.h"
#include "tests/qt_printing.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

TEST(FileNamesTest, TellsFilesFromFoldersAndFromNothing) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"page.htm"_s);
    ASSERT_TRUE(WriteWholeFile(file, "x"));
    EXPECT_TRUE(FileExists(file) && FileExists(folder.path() + u'/', true));
    for (const QString &name : {file + u'/', folder.path() + u'/', folder.path(), QString()})
        EXPECT_FALSE(FileExists(name)) << name.toStdString();
    EXPECT_FALSE(FileExists(file, true) || FileExists(QString(), true));
}

TEST(FileNamesTest, CutsTheNameOffAPath) {
    EXPECT_EQ(GetFileName(u"/home/a.b/page.tar.gz"_s, u'/', false), u"page.tar.gz"_s);
    EXPECT_EQ(GetFileName(u"/home/a.b/page.tar.gz"_s, u'/', true), u"page.tar"_s);
    EXPECT_EQ(GetFileName(u"/home/"_s, u'/', false), QString());
    EXPECT_EQ(GetFileName(u"/home/a.b/page"_s, u'/', true), QString()); // no dot leaves nothing
}

TEST(FileNamesTest, ShortensAPathFromItsMiddle) {
    const QString path = u"/home/anna/projects/site.rts"_s;
    EXPECT_EQ(ShortenPath(path, 33, u'/'), u"/home/anna/projects/.../site.rts"_s);
    EXPECT_EQ(ShortenPath(path, 32, u'/'), u"/home/anna/.../site.rts"_s);
    EXPECT_EQ(ShortenPath(path, 14, u'/'), u"/.../site.rts"_s);
    EXPECT_EQ(ShortenPath(path, 13, u'/'), u".../site.rts"_s);
    EXPECT_EQ(ShortenPath(u"C:\\a\\b.rts"_s, 15, u'\\'), u"C:\\a\\...\\b.rts"_s);
    EXPECT_EQ(ShortenPath(QString(), 50, u'/'), u".../"_s);
}

TEST(FileNamesTest, CleansNamesButKeepsTheirLetters) {
    EXPECT_EQ(RemoveChars(u"My.Site_1-x X: ~`!@#$%^&*()+=|\\{}[]:;'<>,?/\"\t\r\n"_s), u"My.Site_1-x X "_s);
    EXPECT_EQ(RemoveChars(u"one TWO three"_s, u"_"_s, u"twoXEex "_s), u"one___thr_"_s);
    EXPECT_EQ(RemoveChars(u"abc"_s, u"-"_s, u"XxX"_s), u"abc"_s);
}

TEST(FileNamesTest, MakesAddressesOfPaths) {
    EXPECT_EQ(PathToFileUrl(u"/home/a b/report.htm"_s), u"file:///home/a b/report.htm"_s);
    EXPECT_EQ(PathToFileUrl(u"C:\\site\\report.htm"_s), u"file:///C:/site/report.htm"_s);
    EXPECT_EQ(PathToFileUrl(u"\\\\server\\page"_s), u"file:///server/page"_s);
    EXPECT_EQ(PathToFileUrl(u"see FILE:///a\\b"_s), u"see FILE:///a/b"_s);
}

TEST(FileNamesTest, RefusesNamesThatSomePlatformCannotHold) {
    for (const QStringView name : {u"Alta Vista", u"a.b", u"...", u"é", u"100%"})
        EXPECT_TRUE(CanBeFileName(name.toString())) << name.toString().toStdString();
    for (const QStringView name : {u"", u".", u"..", u"../x", u"a\\b", u"C:", u"a*", u"a?", u"\"a\"", u"<a",
                                   u"a>", u"a|b", u"a\nb", u"a\u007F", u"half \xD83D"})
        EXPECT_FALSE(CanBeFileName(name.toString())) << name.toString().toStdString();
}
