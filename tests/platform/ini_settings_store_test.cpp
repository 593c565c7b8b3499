#include "platform/ini_settings_store.h"
#include "support/text_file.h"
#include "tests/file_size_limit.h"
#include "tests/qt_printing.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class IniSettingsStoreTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"config/Lanterra.ini"_s);
    IniSettingsStore store{path};
};

TEST_F(IniSettingsStoreTest, KeepsEveryTextAndTheCaseOfKeys) {
    const QStringList texts{u"a, b; c=d # \"e\" \\n"_s,
                            u"firefox "_s,
                            u"Žož €😀"_s,
                            u"one\r\ntwo\n\\"_s,
                            u"@Invalid()"_s,
                            u"[x]"_s,
                            u"%20"_s,
                            QString()};
    for (qsizetype i = 0; i < texts.size(); ++i)
        EXPECT_TRUE(store.Set(u"Settings"_s, u"key"_s + QString::number(i), texts[i]));
    EXPECT_TRUE(store.Set(u"Settings"_s, u"KEY0"_s, u"other"_s));
    const QSettings reader(path, QSettings::IniFormat);
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const QString key = u"key"_s + QString::number(i);
        EXPECT_EQ(IniSettingsStore(path).Get(u"Settings"_s, key), texts[i]);
        EXPECT_EQ(reader.value(u"Settings/"_s + key).toString(),
                  texts[i] == u"@Invalid()" ? QString() : texts[i]);
    }
}

TEST_F(IniSettingsStoreTest, DeletesOneSection) {
    store.Set(u"Startup"_s, u"Base"_s, u"/home/anna/site.rts"_s);
    store.Set(u"Settings"_s, u"Base"_s, u"other"_s);
    EXPECT_TRUE(store.DeleteSection(u"Startup"_s));
    EXPECT_EQ(store.Get(u"Startup"_s, u"Base"_s), QString());
    EXPECT_EQ(ReadFileText(path), u"[Settings]\nBase=\"other\"\n"_s);
}

TEST_F(IniSettingsStoreTest, ReadsWhatAPersonTyped) {
    store.Set(u"Settings"_s, u"NB"_s, u"10"_s); // makes the folder
    WriteFileText(path, u"; my own\r\n[Settings]\r\nPSN = C:\\proxy, or not \r\nnothing\r\n"_s);
    EXPECT_EQ(store.Get(u"Settings"_s, u"PSN"_s), u"C:\\proxy, or not"_s);
}

TEST_F(IniSettingsStoreTest, AFullDiskOrAnUnreadableFileLeavesTheOldTexts) {
    store.Set(u"Settings"_s, u"PSN"_s, u"old"_s);
    {
        const FileSizeLimit full(40);
        EXPECT_FALSE(store.Set(u"Settings"_s, u"PSN"_s, QString(100, u'x')));
    }
    EXPECT_EQ(store.Get(u"Settings"_s, u"PSN"_s), u"old"_s);
    EXPECT_TRUE(store.Set(u"Settings"_s, u"PSN"_s, u"new"_s));
    IniSettingsStore blocked(folder.path()); // a folder stands there
    EXPECT_FALSE(blocked.Set(u"Settings"_s, u"PSN"_s, u"x"_s) || blocked.DeleteSection(u"Settings"_s));
}

} // namespace
