#include "project/site_source_build.h"

#include "database/data_control.h"
#include "database/database_files.h"
#include "project/site_schema.h"
#include "support/whole_file.h"
#include "tests/fakes/site_database_builder.h"
#include "tests/qt_printing.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SiteSourceBuildTest : public testing::Test {
protected:
    SiteSourceBuildTest() {
        builder.Version(3).Site(u"Gamma"_s).Site(u"Alta"_s, u"directory"_s);
        builder.Query(u"\"c=\" & CCCAAATTT"_s).Categories({u"Other"_s, u"Arts [old], new"_s, u"\u65E5"_s});
        const QString marked = u"\uFEFF O'Mallory & S\u00F6hne"_s; // a byte order mark in front of it
        builder.Site(marked, u"directory"_s).Query(u"\"c=\" & CCCAAATTT"_s).Categories({marked, u"Arts"_s});
        WriteWholeFile(source, SiteSourceText(builder.Source()).toUtf8());
        builder.Write(database);
    }

    void Bind(const QString &table) {
        control.SetDatabaseName(database);
        control.SetRecordSource(table);
        ASSERT_TRUE(control.Refresh()) << control.Failure().toStdString();
    }

    QTemporaryDir folder;
    const QString source = folder.filePath(u"sites.json"_s);
    const QString database = folder.filePath(u"ng.dll"_s);
    SiteDatabaseBuilder builder;
    DatabaseFiles files{SiteSchema()};
    DataControl control{files, DataControl::Access::ReadWrite};
};

TEST_F(SiteSourceBuildTest, ABuildThatFailsLeavesWhatWasThere) {
    EXPECT_EQ(BuildSiteFile(source, source).size(), 1);
    EXPECT_EQ(ReadSiteSource(source).source, builder.Source());
    WriteWholeFile(source, SiteSourceText(SiteDatabaseBuilder(builder).Site(u"Gamma"_s).Source()).toUtf8());
    EXPECT_EQ(BuildSiteFile(source, database).value(0).Text(),
              source + u":4: The name stands in the list twice: Gamma"_s);
    EXPECT_EQ(ReadSiteDatabase(database).source, builder.Source());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList({u"ng.dll"_s, u"sites.json"_s}));
}

TEST_F(SiteSourceBuildTest, RowsAreStoredAsProjectsReadThem) {
    Bind(u"Data"_s);
    EXPECT_EQ(control.Text(u"Name"_s), u"Gamma"_s);
    EXPECT_EQ(control.Number(u"Version"_s), 3);
    EXPECT_FALSE(control.Boolean(u"Selected"_s));
    Bind(u"Categories"_s);
    EXPECT_EQ(control.RowCount(), 2);
    EXPECT_EQ(control.Text(u"Categories"_s), u"Other\r\nArts [old], new\r\n\u65E5"_s);
    // A NULL would count as chosen when a run looks for directories without a category.
    EXPECT_FALSE(control.IsNull(u"Selected"_s));
    EXPECT_EQ(control.Text(u"Selected"_s), QString());
}

TEST_F(SiteSourceBuildTest, CategoriesBelongToOneKnownSite) {
    Bind(u"Categories"_s);
    for (const QString &name : {u"Nobody"_s, u"Alta"_s}) {
        control.AddNew();
        control.SetText(u"Name"_s, name);
        control.Update();
    }
    control.Close();
    const QList<SiteFinding> findings = ReadSiteDatabase(database).findings;
    ASSERT_EQ(findings.size(), 2);
    EXPECT_EQ(findings[0].Text(), database + u":3: Categories of an unknown site: Nobody"_s);
    EXPECT_EQ(findings[1].Text(), database + u":4: Categories for the second time: Alta"_s);
}

} // namespace
