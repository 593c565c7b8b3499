#include "project/site_source_check.h"

#include "support/whole_file.h"
#include "tests/fakes/site_database_builder.h"
#include "tests/qt_printing.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SiteSourceCheckTest : public testing::Test {
protected:
    SiteSourceCheckTest() {
        builder.Site(u"Alta"_s);
        builder.Site(u"Beta"_s, u"Big Directory"_s).Method(u"POST"_s).Query(u"\"c=\" & CCCAAATTT"_s);
        builder.Categories({u"Arts"_s, u"Arts"_s, u"News"_s});
    }

    QStringList Findings() const {
        QStringList lines;
        for (const SiteFinding &finding : CheckSiteSource(builder.Source(), u"f"_s))
            lines.append(finding.Text());
        return lines;
    }

    SiteDatabaseBuilder builder;
};

TEST_F(SiteSourceCheckTest, NamesMustBeFileNamesOfTheirOwn) {
    const QList<QStringList> cases{{u""_s, u"The name is empty."_s},
                                   {u"Gamma "_s, u"The name begins or ends with a blank."_s},
                                   {u"../Gamma"_s, u"The name can't be a file name: ../Gamma"_s},
                                   {QString(121, u'ä'), u"The name is too long for a file name."_s},
                                   {u"ALTA"_s, u"The name stands in the list twice: ALTA"_s}};
    for (const QStringList &row : cases) {
        const SiteDatabaseBuilder fit = builder;
        builder.Site(row[0]);
        EXPECT_EQ(Findings(), QStringList({u"f: row 3: "_s + row[1]}));
        builder = fit;
    }
}

TEST_F(SiteSourceCheckTest, EveryFaultOfASiteIsTold) {
    builder.Site(u"Gamma"_s, u"catalogue"_s).Method(u"put"_s).Query(u"\"x\" & txtWord"_s);
    builder.Action(u"ftp://gamma.example/add"_s);
    EXPECT_EQ(Findings(),
              QStringList({u"f: row 3: The type names no directory, engine or list: catalogue"_s,
                           u"f: row 3: The method is not get or post: put"_s,
                           u"f: row 3: The action is no address of a form: ftp://gamma.example/add"_s,
                           u"f: row 3: Unknown placeholder: txtWord"_s}));
}

TEST_F(SiteSourceCheckTest, AnActionIsAWholeWebAddress) {
    builder.Action(u"https://beta.example:8080/add.cgi?x=1"_s);
    EXPECT_EQ(Findings(), QStringList());
    for (const QString &action :
         {u""_s, u"add.cgi"_s, u"http:///add"_s, u"http://a b/"_s, u"http://a/#part"_s}) {
        builder.Action(action);
        EXPECT_EQ(Findings(), QStringList({u"f: row 2: The action is no address of a form: "_s + action}));
    }
}

TEST_F(SiteSourceCheckTest, CategoriesAndTheirPlaceholderComeTogether) {
    builder.Categories({u"Arts\r\nNews"_s});
    EXPECT_EQ(Findings(), QStringList({u"f: row 2: A category is empty or holds a line break."_s}));
    builder.Categories({u"Arts"_s, u"News"_s, u"News"_s});
    EXPECT_EQ(Findings(), QStringList({u"f: row 2: A category is offered twice."_s}));
    builder.Categories({});
    EXPECT_EQ(Findings(),
              QStringList({u"f: row 2: The template asks for a category, but the site has none."_s}));
    builder.Categories({u"Arts"_s}).Query(u"\"x\""_s);
    EXPECT_EQ(Findings(),
              QStringList({u"f: row 2: The site has categories, but its template asks for none."_s}));
}

TEST_F(SiteSourceCheckTest, AFileIsReadAsWhatItIs) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"file"_s);
    builder.Site(u"Beta"_s).Write(path);
    EXPECT_EQ(CheckSiteFile(path).value(0).Text(),
              path + u": row 3: The name stands in the list twice: Beta"_s);
    WriteWholeFile(path, SiteSourceText(SiteSource{1, {}}).toUtf8());
    EXPECT_EQ(CheckSiteFile(path).value(0).reason, u"There are no sites."_s);
    WriteWholeFile(path, "SQLite format 3 or so");
    EXPECT_EQ(CheckSiteFile(path).value(0).reason, u"The file is no database."_s);
}

} // namespace
