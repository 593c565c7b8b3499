#include "platform/ini_settings_store.h"
#include "support/text_file.h"
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
    bool Set(const QString &key, const QString &text) { return store.Set(u"Settings"_s, key, text); }
    QString Get(const QString &key) const { return IniSettingsStore(path).Get(u"Settings"_s, key); }

    QTemporaryDir folder;
    QString path = folder.filePath(u"config/Lanterra.ini"_s);
    IniSettingsStore store{path};
};

TEST_F(IniSettingsStoreTest, KeepsEveryTextAndTheCaseOfKeys) {
    const QMap<QString, QString> texts{{u"a"_s, u"a, b; c=d # \"e\" \\n"_s},
                                       {u"b"_s, u"firefox "_s},
                                       {u"c"_s, u"Žož €😀"_s},
                                       {u"d"_s, u"one\r\ntwo\n\\"_s},
                                       {u"e"_s, u"[x]"_s},
                                       {u"f"_s, u"%20"_s},
                                       {u"g"_s, u"@Invalid()"_s},
                                       {u"A"_s, u"other"_s}};
    for (const QString &key : texts.keys())
        EXPECT_TRUE(Set(key, texts[key]));
    const QSettings reader(path, QSettings::IniFormat);
    for (const QString &key : texts.keys()) {
        EXPECT_EQ(Get(key), texts[key]);
        EXPECT_EQ(reader.value(u"Settings/"_s + key).toString(), key == u"g" ? QString() : texts[key]);
    }
}

TEST_F(IniSettingsStoreTest, ReadsWhatAPersonTypedAndDeletesOneSection) {
    Set(u"NB"_s, u"10"_s); // makes the folder
    WriteFileText(path, u"; my own\r\n[Settings]\r\nPSN = C:\\proxy, or not \r\nnothing\r\n"_s);
    EXPECT_EQ(Get(u"PSN"_s), u"C:\\proxy, or not"_s);
    store.Set(u"Startup"_s, u"Base"_s, u"/home/anna/site.rts"_s);
    EXPECT_TRUE(store.DeleteSection(u"Settings"_s));
    EXPECT_EQ(ReadFileText(path), u"[Startup]\nBase=\"/home/anna/site.rts\"\n"_s);
}

TEST_F(IniSettingsStoreTest, WhatCantBeStoredIsTold) {
    IniSettingsStore blocked(folder.path()); // a folder stands there
    EXPECT_FALSE(blocked.Set(u"Settings"_s, u"PSN"_s, u"x"_s) || blocked.DeleteSection(u"Settings"_s));
}

} // namespace
