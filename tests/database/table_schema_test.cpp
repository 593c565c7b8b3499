#include "tests/database/database_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class TableSchemaTest : public DatabaseFixture {
protected:
    QString FailureWith(const QStringList &statements) {
        CreateDatabase(Path(), {createSites});
        {
            SqliteConnection connection(Path(), SqliteConnection::Mode::ReadWrite);
            for (const QString &statement : statements)
                EXPECT_TRUE(connection.Run(statement)) << connection.Failure().toStdString();
        }
        Bind(control);
        control.Close();
        return control.Failure();
    }
};

TEST_F(TableSchemaTest, RefusesWhateverIsMoreThanATable) {
    const QString reason = u"The database holds more than plain tables."_s;
    for (const char *statement :
         {"CREATE TRIGGER t AFTER UPDATE ON Sites BEGIN DELETE FROM Sites; END",
          "CREATE VIEW v AS SELECT * FROM Sites", "CREATE VIRTUAL TABLE v USING fts5(a)",
          "CREATE TABLE t (a TEXT PRIMARY KEY) WITHOUT ROWID", "CREATE TABLE t (a INTEGER PRIMARY KEY)",
          "CREATE TABLE t (a TEXT, b AS (a || a))"})
        EXPECT_EQ(FailureWith({QString::fromLatin1(statement)}), reason) << statement;
    EXPECT_EQ(FailureWith({u"CREATE INDEX i ON Sites (Name)"_s, u"ANALYZE"_s}), QString());
}

TEST_F(TableSchemaTest, HoldsAFileToTheTablesThatAreWanted) {
    DatabaseFiles strictFiles(SchemaOf({createSites}));
    DataControl strict(strictFiles, DataControl::Access::ReadOnly);
    EXPECT_TRUE(Bind(strict));
    strict.Close();
    const QString otherFields = u"The fields of table \"Sites\" are not the expected ones."_s;
    const QList<QStringList> cases{
        {u"CREATE TABLE Other (a TEXT)"_s, u"The database has unexpected tables."_s},
        {u"ALTER TABLE Sites ADD COLUMN more TEXT"_s, otherFields},
        {u"ALTER TABLE Sites RENAME COLUMN \"Number of visits\" TO \"Number of  visits\""_s, otherFields},
        {u"ALTER TABLE Sites RENAME TO Sites2"_s, u"The database has no table \"Sites\"."_s}};
    for (const QStringList &row : cases) {
        FailureWith({row[0]});
        EXPECT_FALSE(Bind(strict));
        EXPECT_EQ(strict.Failure(), row[1]);
    }
}

} // namespace
