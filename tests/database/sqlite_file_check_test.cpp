#include "database/sqlite_file_check.h"
#include "tests/database/database_fixture.h"

#include <QRandomGenerator>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SqliteFileCheckTest : public DatabaseFixture {
protected:
    SqliteFileCheckTest() {
        GivenRows(QStringList(500, u"Alta"_s));
        control.Close();
        sound = BytesOf(Path());
    }

    /// Why a file of these bytes is refused. No row may come out of it, and it must stay as it is.
    QString RefusalOf(const QByteArray &bytes) {
        WriteWholeFile(Path(), bytes);
        EXPECT_FALSE(Bind(control));
        EXPECT_EQ(control.RowCount(), 0);
        EXPECT_EQ(BytesOf(Path()), bytes);
        return SqliteFileRefusal(Path());
    }

    QByteArray WithByte(qsizetype place, char byte) const {
        QByteArray bytes = sound;
        bytes[place] = byte;
        return bytes;
    }

    QByteArray sound;
};

TEST_F(SqliteFileCheckTest, RefusesAFileThatIsCutOff) {
    EXPECT_EQ(SqliteFileRefusal(Path()), QString());
    for (const qsizetype size : {0, 1, 16, 99})
        EXPECT_EQ(RefusalOf(sound.first(size)), u"The file is no database."_s) << size;
    for (const qsizetype size : {qsizetype(100), qsizetype(4096), sound.size() - 1})
        EXPECT_EQ(RefusalOf(sound.first(size)), u"The database file is cut off."_s) << size;
}

TEST_F(SqliteFileCheckTest, RefusesWhatIsNoDatabase) {
    QByteArray noise(sound.size(), '\0');
    QRandomGenerator generator(7);
    for (char &byte : noise)
        byte = static_cast<char>(generator.bounded(256));
    EXPECT_EQ(RefusalOf(noise), u"The file is no database."_s);
    EXPECT_EQ(RefusalOf("[Project]\r\n" + QByteArray(9000, ' ')), u"The file is no database."_s);
    EXPECT_EQ(RefusalOf(WithByte(0, 's')), u"The file is no database."_s);
    EXPECT_EQ(RefusalOf(WithByte(17, 3)), u"The header of the database is damaged."_s);
    EXPECT_EQ(RefusalOf(WithByte(22, 0)), u"The header of the database is damaged."_s);
    EXPECT_EQ(RefusalOf(WithByte(19, 2)), u"The database keeps its changes in a second file."_s);
    EXPECT_EQ(SqliteFileRefusal(folder.path()), u"There is no such file."_s);
}

TEST_F(SqliteFileCheckTest, DamageBehindTheHeaderFailsTheRefreshWhole) {
    QByteArray damaged = sound;
    damaged.replace(12288, 4096, QByteArray(4096, '\x55'));
    WriteWholeFile(Path(), damaged);
    EXPECT_EQ(SqliteFileRefusal(Path()), QString());
    EXPECT_FALSE(Bind(control));
    EXPECT_EQ(control.RowCount(), 0);
}

} // namespace
