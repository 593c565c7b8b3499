#include "database/sqlite_file_check.h"
#include "tests/database/database_fixture.h"

#include <QRandomGenerator>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

using SqliteFileCheckTest = DatabaseFixture;

TEST_F(SqliteFileCheckTest, RefusesWhatIsNoSoundDatabase) {
    GivenRows(QStringList(500, u"Alta"_s));
    control.Close();
    const QByteArray sound = BytesOf(Path());
    EXPECT_EQ(SqliteFileRefusal(Path()), QString());
    EXPECT_EQ(SqliteFileRefusal(folder.path()), u"There is no such file."_s);
    QByteArray noise(sound.size(), '\0');
    QRandomGenerator generator(7);
    for (char &byte : noise)
        byte = static_cast<char>(generator.bounded(256));
    const auto withByte = [&](qsizetype place, char byte) {
        return QByteArray(sound).replace(place, 1, QByteArray(1, byte));
    };
    const QString noDatabase = u"The file is no database."_s;
    const QString cutOff = u"The database file is cut off."_s;
    const QString damaged = u"The header of the database is damaged."_s;
    const std::pair<QByteArray, QString> cases[] = {
        {"", noDatabase},
        {sound.first(1), noDatabase},
        {sound.first(99), noDatabase},
        {sound.first(100), cutOff},
        {sound.first(4096), cutOff},
        {sound.chopped(1), cutOff},
        {noise, noDatabase},
        {"[Project]\r\n" + QByteArray(9000, ' '), noDatabase},
        {withByte(0, 's'), noDatabase},
        {withByte(17, 3), damaged},
        {withByte(22, 0), damaged},
        {withByte(19, 2), u"The database keeps its changes in a second file."_s},
        {Damage(Path(), 12288), u""_s}, // told by the refresh, which fails as a whole
    };
    for (const auto &[bytes, reason] : cases) {
        WriteWholeFile(Path(), bytes);
        EXPECT_EQ(SqliteFileRefusal(Path()), reason);
        EXPECT_FALSE(Bind(control));
        EXPECT_EQ(control.RowCount(), 0);
        EXPECT_EQ(BytesOf(Path()), bytes);
    }
}

} // namespace
