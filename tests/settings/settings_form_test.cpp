#include "settings/proxy_settings.h"
#include "tests/fakes/fake_dialogs.h"
#include "tests/fakes/fake_http_client.h"
#include "tests/fakes/fake_settings_store.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>
#include <memory>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SettingsFormTest : public testing::Test {
protected:
    void Store(const QString &key, const QString &value) { store.values[{u"Settings"_s, key}] = value; }
    QString Stored(const QString &key) const { return store.Get(u"Settings"_s, key); }
    void ConfirmProxy(const QString &server) {
        form.chkProxy.SetValue(1);
        form.Text1.SetText(server);
        form.Text2.SetText(u"8080"_s);
        form.cmdOK_Click();
    }

    FakeSettingsStore store;
    QString base;
    Options options{store};
    WindowSettings window{options, base};
    FakeDialogs dialogs;
    SettingsForm form{options, window, dialogs};
    ProxySettings proxy{form};
    FakeHttpClient client;
};

TEST_F(SettingsFormTest, OnlyTheFirstLoadSetsTheFourOptions) {
    form.Load();
    for (const QString &key :
         {u"LoadLastProject"_s, u"SnimiNaIzlazu"_s, u"CreateStatistic"_s, u"check_for_program_upgrade"_s}) {
        EXPECT_EQ(Stored(key), u"1"_s) << key.toStdString();
        Store(key, key == u"SnimiNaIzlazu" ? u"yes"_s : u"0"_s); // no number, so the box stays as it was
    }
    EXPECT_EQ(Stored(u"NB"_s), u"10"_s);
    EXPECT_TRUE(form.LoadLastProject.Checked() && form.check_for_program_upgrade.Checked());
    form.Load();
    EXPECT_FALSE(form.LoadLastProject.Checked() || form.check_for_program_upgrade.Checked());
    EXPECT_TRUE(form.SnimiNaIzlazu.Checked());
}

TEST_F(SettingsFormTest, AProxyWithoutAServerNameIsNotKept) {
    proxy.AddClient(client);
    ConfirmProxy(QString());
    EXPECT_FALSE(form.chkProxy.Checked() || form.Text1.Enabled());
    EXPECT_EQ(Stored(u"UseProxy"_s), u"0"_s);
    EXPECT_EQ(Stored(u"PORT"_s), u"8080"_s);
    EXPECT_EQ(window.Value(3), 5);
    EXPECT_EQ(client.ProxyPort(), 80);
}

TEST_F(SettingsFormTest, CancelKeepsTheEditsForTheNextOkAndALostStoreIsToldOnce) {
    form.Text1.SetText(u"typed"_s);
    form.cmdCancel_Click();
    store.failing = true;
    form.cmdOK_Click();
    EXPECT_TRUE(store.values.empty());
    EXPECT_EQ(dialogs.Told(), u"Error: The settings could not be saved. "_s);
    store.failing = false;
    form.cmdOK_Click();
    EXPECT_EQ(Stored(u"PSN"_s), u"typed"_s);
}

TEST_F(SettingsFormTest, TheThirdWindowValueIsStoredAtExitAndAnInvalidFirstOneResetsAllFive) {
    base = u"/home/anna/site.rts"_s;
    ConfirmProxy(u"proxy"_s);
    EXPECT_EQ(Stored(u"chh3"_s) + Stored(u"chh4"_s), u"6"_s);
    window.StoreWindowSettings();
    base.clear();
    window.StoreWindowSettings();
    EXPECT_EQ(Stored(u"chh3"_s), u"6"_s);
    EXPECT_EQ(store.Get(u"Startup"_s, u"Base"_s), u"/home/anna/site.rts"_s) << "stored at exit, too";

    Store(u"chh2"_s, u"5"_s);
    for (const bool valid : {true, false}) {
        Store(u"chh1"_s, valid ? u"6"_s : u"7"_s);
        EXPECT_EQ(window.Load(), valid);
        EXPECT_EQ(window.Value(2), valid ? 5 : 6);
    }
}

TEST_F(SettingsFormTest, SwitchingTheProxyOffIsToldToTheClientsAndNotToThoseWhoKeepTheirs) {
    QStringList given;
    QObject::connect(&proxy, &ProxySettings::ProxyGiven, &proxy, [&](const QString &server, int port) {
        given << server + u':' + QString::number(port);
    });
    proxy.AddClient(client);
    proxy.AddClient(*std::make_unique<FakeHttpClient>()); // deleted at once
    ConfirmProxy(u"proxy"_s);
    form.Text2.SetText(u"80a"_s);
    proxy.ApplyProxySettings();
    EXPECT_EQ(client.ProxyServer(), u"proxy"_s);
    EXPECT_EQ(client.ProxyPort(), 8080);
    form.chkProxy.SetValue(0);
    proxy.ApplyProxySettings();
    EXPECT_EQ(client.ProxyServer(), QString());
    EXPECT_EQ(client.ProxyPort(), 80);
    EXPECT_EQ(given, (QStringList{u"proxy:8080"_s, u"proxy:0"_s}));
}

} // namespace
