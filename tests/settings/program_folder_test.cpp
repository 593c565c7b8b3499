#include "settings/hosts.h"
#include "settings/program_folder.h"
#include "support/text_file.h"
#include "tests/qt_printing.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class ProgramFolderTest : public testing::Test {
protected:
    ProgramFolderTest() {
        for (const QString &name : {u"ng.dll"_s, u"engine.dat"_s, u"Report/top.dat"_s, u"hosts.ini"_s})
            Install(u"share/"_s + name, u"1"_s, 1);
        places.executable = folder.filePath(u"bin"_s);
        places.documents = folder.filePath(u"documents"_s);
        places.share = folder.filePath(u"share"_s);
    }

    void Install(const QString &name, const QString &text, int day) {
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        WriteFileText(path, text);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime(QDate(2024, 1, day), QTime(12, 0)), QFileDevice::FileModificationTime);
    }
    bool Prepare() const {
        return ProgramFolder(places).Prepare(
            [](const QString &master) { return ReadFileText(master).toInt(); });
    }
    QString Own(const QString &name) const {
        return ReadFileText(folder.filePath(u"documents/Lanterra/"_s + name));
    }
    QString Place() const { return QDir(folder.path()).relativeFilePath(ProgramFolder(places).Path()); }

    QTemporaryDir folder;
    ProgramFolder::Places places;
};

TEST_F(ProgramFolderTest, IsTheFirstPlaceThatHoldsGood) {
    EXPECT_EQ(Place(), u"documents/Lanterra"_s);
    Install(u"bin/ng.dll"_s, u"1"_s, 1);
    EXPECT_EQ(Place(), u"bin"_s);
    places.environment = folder.filePath(u"home/"_s);
    EXPECT_EQ(Place(), u"home"_s);
    EXPECT_TRUE(Prepare());
    EXPECT_FALSE(QFile::exists(folder.filePath(u"home"_s))); // only the folder in the documents is filled
    places.given = u"relative"_s;
    EXPECT_EQ(ProgramFolder(places).Path(), QDir::current().filePath(u"relative"_s));
}

TEST_F(ProgramFolderTest, IsFilledAtItsFirstUseAndRenewedFromNewerFiles) {
    EXPECT_TRUE(Prepare());
    EXPECT_EQ(Own(u"ng.dll"_s) + Own(u"Report/top.dat"_s), u"11"_s);
    Install(u"documents/Lanterra/Report/top.dat"_s, u"my own"_s, 5);
    for (const QString &name : {u"engine.dat"_s, u"Report/top.dat"_s, u"hosts.ini"_s})
        Install(u"share/"_s + name, u"2"_s, 4);
    Install(u"share/ng.dll"_s, u"01"_s, 4); // of the same Version
    EXPECT_TRUE(Prepare());
    EXPECT_EQ(Own(u"Report/top.dat"_s), u"my own"_s);
    EXPECT_EQ(Own(u"engine.dat"_s), u"2"_s);
    EXPECT_EQ(Own(u"hosts.ini"_s), u"1"_s); // the user's to change
    EXPECT_EQ(Own(u"ng.dll"_s), u"1"_s);
    Install(u"share/ng.dll"_s, u"2"_s, 4);
    EXPECT_TRUE(Prepare());
    EXPECT_EQ(Own(u"ng.dll"_s), u"2"_s);
}

TEST_F(ProgramFolderTest, GivesTheAddressesOfHostsAsTheyStand) {
    WriteFileText(folder.filePath(u"hosts.ini"_s),
                  u"; a remark\n[Counter]\nFirst=http://a.example/a?b=1,2&c=%20\nLater=\n"_s);
    const Hosts hosts(folder.path());
    EXPECT_EQ(hosts.Address(u"Counter"_s, u"First"_s), u"http://a.example/a?b=1,2&c=%20"_s);
    EXPECT_EQ(hosts.Address(u"Counter"_s, u"Later"_s), QString());
    EXPECT_EQ(Hosts(folder.filePath(u"none"_s)).Address(u"Counter"_s, u"First"_s), QString());
}

} // namespace
