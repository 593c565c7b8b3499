#include "settings/document_viewer.h"
#include "settings/web_browser_form.h"
#include "tests/fakes/fake_dialogs.h"
#include "tests/fakes/fake_settings_store.h"
#include "tests/fakes/recording_doors.h"
#include "tests/qt_printing.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class WebBrowserFormTest : public testing::Test {
protected:
    void Choose(const QString &browser) {
        form.Show();
        form.Option2_Click();
        form.BrowserPath.SetText(browser);
        form.SSCommand1_Click();
    }
    QString Opened(const QString &document) {
        viewer.OpenDocument(document);
        return opener.Opened();
    }
    QString Stored() const { return store.Get(u"Settings"_s, u"Browser"_s); }

    FakeSettingsStore store;
    FakeDialogs dialogs;
    FakeDocumentOpener opener;
    Options options{store};
    QString base = u"/home/anna/site.rts"_s;
    WebBrowserForm form{options, dialogs, base};
    DocumentViewer viewer{form.BrowserPath, opener, dialogs};
};

TEST_F(WebBrowserFormTest, OkStoresABrowserOfMoreThanSixCharactersWithABlankBehindIt) {
    Choose(u"lynx5"_s);
    EXPECT_EQ(Stored(), QString());
    Choose(u"chrome"_s);
    EXPECT_EQ(Stored(), u"chrome "_s);
    form.Show();
    EXPECT_TRUE(form.Option2.Checked() && form.BrowserPath.Enabled() && form.SSCommand3.Enabled());
    form.Option1_Click();
    EXPECT_FALSE(form.Option2.Checked() || form.BrowserPath.Enabled() || form.SSCommand3.Enabled());
    form.SSCommand1_Click();
    EXPECT_EQ(Stored() + form.BrowserPath.Text(), QString());
}

TEST_F(WebBrowserFormTest, BrowseAlsoMakesTheProgramTheOpenProject) {
    dialogs.files = {std::nullopt, u"/opt/My Browser/run"_s};
    form.SSCommand3_Click();
    EXPECT_EQ(base, u"/home/anna/site.rts"_s);
    form.SSCommand3_Click();
    EXPECT_EQ(form.BrowserPath.Text(), u"/opt/My Browser/run"_s);
    EXPECT_EQ(base, u"/opt/My Browser/run"_s);
}

TEST_F(WebBrowserFormTest, DocumentsGoToTheChosenBrowserAsOneArgument) {
    store.values[{u"Settings"_s, u"Browser"_s}] = u"\"/opt/My Browser/run\" --new-window "_s;
    EXPECT_EQ(Opened(u"/home/a b.htm"_s), u"|/home/a b.htm"_s);
    form.Load();
    EXPECT_EQ(Opened(u"/home/a b.htm"_s), u"/opt/My Browser/run|--new-window|/home/a b.htm"_s);
    const QTemporaryDir folder;
    const QString program = folder.filePath(u"my browser"_s);
    ASSERT_TRUE(QFile(program).open(QIODevice::WriteOnly));
    form.BrowserPath.SetText(program + u' ');
    EXPECT_EQ(Opened(u"x"_s), program + u"|x"_s);
    form.BrowserPath.SetText(u" "_s);
    EXPECT_EQ(Opened(u"x"_s), u"|x"_s);
}

TEST_F(WebBrowserFormTest, OnlyAMissingApplicationIsTold) {
    opener.result = OpenResult::Failed;
    viewer.OpenDocument(u"x"_s);
    EXPECT_EQ(dialogs.Told(), QString());
    opener.result = OpenResult::NoApplication;
    viewer.OpenDocument(u"x"_s);
    EXPECT_EQ(dialogs.Told(), u"Error: There is no application for this type of file!"_s);
}

} // namespace
