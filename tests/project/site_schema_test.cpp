#include "project/site_schema.h"

#include "database/data_control.h"
#include "database/database_files.h"
#include "database/sqlite_connection.h"
#include "tests/fakes/site_database_builder.h"
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

TEST_F(SiteSchemaTest, AnEmptyDatabaseHasTheFourTables) {
    ASSERT_TRUE(CreateSiteDatabase(path));
    for (const QString &table : {u"Data"_s, u"Categories"_s, u"Project"_s, u"Stats"_s}) {
        EXPECT_TRUE(Bind(table)) << control.Failure().toStdString();
        EXPECT_EQ(control.RowCount(), 0);
    }
    ASSERT_TRUE(control.AddNew());
    EXPECT_TRUE(control.SetText(u"Successful Submissions"_s, QString(70000, u'x')));
    EXPECT_FALSE(control.SetText(u"SuccessfulSubmissions"_s, u"x"_s));
}

TEST_F(SiteSchemaTest, ATextOfTheProjectHasAtMost255Characters) {
    CreateSiteDatabase(path);
    Bind(u"Project"_s);
    control.AddNew();
    for (const QString &field : {u"txtURL"_s, u"txtKey6"_s, u"Combo2"_s, u"txttrazim"_s}) {
        EXPECT_TRUE(control.SetText(field, QString(255, u'x')));
        EXPECT_FALSE(control.SetText(field, QString(256, u'x')));
    }
    control.SetNumber(u"Check3"_s, 1);
    EXPECT_TRUE(control.Update());
    control.Refresh();
    EXPECT_EQ(control.Text(u"Combo2"_s).size(), 255);
    EXPECT_EQ(control.Number(u"Check3"_s), 1);
}

TEST_F(SiteSchemaTest, AFileWithOtherFieldsIsRefused) {
    CreateSiteDatabase(path);
    SqliteConnection(path, SqliteConnection::Mode::ReadWrite)
        .Run(u"ALTER TABLE Stats RENAME COLUMN \"Failed Submissions\" TO FailedSubmissions"_s);
    EXPECT_FALSE(Bind(u"Data"_s));
    EXPECT_EQ(control.Failure(), u"The fields of table \"Stats\" are not the expected ones."_s);
}

} // namespace
