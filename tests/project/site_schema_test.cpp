#include "project/site_schema.h"

#include "database/data_control.h"
#include "database/database_files.h"
#include "database/sqlite_connection.h"
#include "tests/qt_printing.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SiteSchemaTest : public testing::Test {
protected:
    bool Bind(const QString &table) {
        control.SetDatabaseName(path);
        control.SetRecordSource(table);
        return control.Refresh();
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"ng.dll"_s);
    DatabaseFiles files{SiteSchema()};
    DataControl control{files, DataControl::Access::ReadWrite};
};

TEST_F(SiteSchemaTest, OnlyTextsOfTheProjectAreHeldTo255Characters) {
    ASSERT_TRUE(CreateSiteDatabase(path));
    ASSERT_TRUE(Bind(u"Stats"_s)) << control.Failure().toStdString();
    control.AddNew();
    EXPECT_TRUE(control.SetText(u"Successful Submissions"_s, QString(70000, u'x')));
    ASSERT_TRUE(Bind(u"Project"_s));
    control.AddNew();
    for (const QString &field : {u"txtURL"_s, u"txtKey6"_s, u"Combo2"_s, u"txttrazim"_s}) {
        EXPECT_TRUE(control.SetText(field, QString(255, u'x')));
        EXPECT_FALSE(control.SetText(field, QString(256, u'x')));
    }
}

TEST_F(SiteSchemaTest, AFileWithOtherFieldsIsRefused) {
    CreateSiteDatabase(path);
    SqliteConnection(path, SqliteConnection::Mode::ReadWrite)
        .Run(u"ALTER TABLE Stats RENAME COLUMN \"Failed Submissions\" TO FailedSubmissions"_s);
    EXPECT_FALSE(Bind(u"Data"_s));
    EXPECT_EQ(control.Failure(), u"The fields of table \"Stats\" are not the expected ones."_s);
}

} // namespace
