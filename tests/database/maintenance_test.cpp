#include "tests/database/database_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class MaintenanceTest : public DatabaseFixture {
protected:
    void GivenNumberedRows(int count) {
        QStringList names;
        for (int row = 0; row < count; ++row)
            names.append(QString::number(row));
        GivenRows(names);
    }

    const QString copy = u"copy.bak"_s;
    const DatabaseSchema wanted = SchemaOf({createSites});
};

TEST_F(MaintenanceTest, CompactionKeepsRowsAndOrderAndFreesRoom) {
    GivenNumberedRows(600);
    {
        const WalkTransaction walk(control);
        for (int row = 0; row < 500; ++row) {
            control.MoveFirst();
            control.Delete();
        }
    }
    const QStringList names = Names(control);
    control.Close();
    const qint64 before = QFile(Path()).size();
    WriteWholeFile(Path(copy), "what stood there before");
    EXPECT_EQ(CompactThroughBackup(Path(), Path(copy), wanted), QString());
    EXPECT_LT(QFile(Path()).size(), before);
    EXPECT_EQ(BytesOf(Path()), BytesOf(Path(copy)));
    EXPECT_EQ(FilesLeft(), QStringList({copy, u"sites.rts"_s}));
    EXPECT_EQ(StoredNames(), names);
    EXPECT_EQ(names.size(), 100);
}

TEST_F(MaintenanceTest, WhatFailsLeavesTheOldCopy) {
    WriteWholeFile(Path(copy), "old");
    const QString reason = u"not today"_s;
    EXPECT_EQ(CopyDatabase(Path(), Path(copy), [&](const QString &) { return reason; }), reason);
    EXPECT_EQ(CopyDatabase(Path(u"missing"_s), Path(copy)), u"There is no such file."_s);
    // A journal beside the old copy would be played back into the new one.
    WriteWholeFile(Path(copy) + u"-journal"_s, "undo");
    EXPECT_EQ(CompactThroughBackup(Path(), Path(copy), wanted),
              u"The file could not be written; the disk may be full or write-protected."_s);
    QFile::remove(Path(copy) + u"-journal"_s);
    WriteWholeFile(Path(), "no database at all");
    EXPECT_EQ(CompactThroughBackup(Path(), Path(copy), wanted), u"The file is no database."_s);
    EXPECT_EQ(BytesOf(Path(copy)), QByteArray("old"));
    EXPECT_EQ(FilesLeft(), QStringList({copy, u"sites.rts"_s}));
}

TEST_F(MaintenanceTest, WhatIsDamagedNeverTakesTheBackupsPlaceAndRepairKeepsTheRowsAroundIt) {
    GivenNumberedRows(3000);
    control.Close();
    WriteWholeFile(Path(copy), "old");
    EXPECT_EQ(CompactThroughBackup(Path(), Path(copy), {}), u"The database has unexpected tables."_s);
    const QByteArray damaged = Damage(Path(), 16384);
    EXPECT_EQ(CompactThroughBackup(Path(), Path(copy), wanted), u"The database is damaged."_s);
    EXPECT_TRUE(BytesOf(Path(copy)) == "old" && BytesOf(Path()) == damaged);
    ASSERT_FALSE(Bind(control));
    control.Close();
    EXPECT_TRUE(RepairDatabase(Path()));
    const QByteArray repaired = BytesOf(Path());
    EXPECT_TRUE(RepairDatabase(Path()));
    EXPECT_EQ(BytesOf(Path()), repaired) << "a sound file is left as it is";
    const QStringList names = StoredNames();
    EXPECT_EQ(names.first() + names.last(), u"02999"_s);
    EXPECT_GT(names.size(), 2000);
    EXPECT_LT(names.size(), 3000);
    EXPECT_EQ(FilesLeft(), QStringList({copy, u"sites.rts"_s}));
}

TEST_F(MaintenanceTest, RepairGivesUpOnAFileWithoutReadableTables) {
    for (const QByteArray &bytes : {QByteArray(), QByteArray("text"), BytesOf(Path()).first(100)}) {
        WriteWholeFile(Path(), bytes);
        EXPECT_FALSE(RepairDatabase(Path()));
        EXPECT_EQ(BytesOf(Path()), bytes);
    }
}

TEST_F(MaintenanceTest, ACopyIntoAFolderThatIsMissingFailsAndLeavesNothingAnywhere) {
    const QStringList before = QDir().entryList(QDir::Files | QDir::Hidden);
    EXPECT_FALSE(
        CreateDatabase(QStringLiteral("/no/such/folder/new.db"), {QStringLiteral("CREATE TABLE t (f)")}));
    EXPECT_EQ(QDir().entryList(QDir::Files | QDir::Hidden), before);
}

} // namespace
