#include "support/text_file.h"
#include "tests/fakes/program_fixture.h"
#include "tests/wait_until.h"

#include <QDir>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class WebSearchTest : public ProgramFixture {
protected:
    WebSearchTest() {
        QByteArray hosts = "[Search]\n";
        for (const QByteArray key :
             {"AltaVista", "Excite", "HotBot", "HotBotMain", "Infoseek", "Lycos", "WebCrawler"})
            hosts += key + "=http://" + key + ".example/\n";
        GivenHosts(hosts);
        StartProgram();
    }

    WebSearch &Form() { return program->webSearch; }
    /// The client of the pane, once it was asked for an answer.
    FakeHttpClient &Inet20() {
        return ClientThat(
            [](const FakeHttpClient *client) { return client->SaveFile().contains(u"/search/"_s); });
    }
    void Search(const QString &engine, const QString &words = u"hats"_s) {
        Form().cobEngine.SetText(engine);
        Form().txtKeywords.SetText(words);
        Form().cmdFind_Click();
    }
    void Answer(const QString &text) {
        emit Inet20().Connected();
        Inet20().Receive("HTTP/1.1 200 OK\r\n\r\n", text.toLatin1());
        Inet20().SetResponseText(text);
        emit Inet20().Done();
    }
    QString PathOf(const QString &answer) const { return home.filePath(u"search/"_s + answer); }
    QString State() { return Form().Label27.Caption(); }
};

TEST_F(WebSearchTest, AsksEachEngineAtItsOwnAddressAndKeepsItsAnswer) {
    const std::pair<QString, QString> queries[] = {
        {u"AltaVista"_s, u"/cgi-bin/query?pg=q&what=web&kl=XX&q=WORDS&search.x=38&search.y=9"_s},
        {u"Excite"_s, u"/search.gw?trace=a&search=WORDS"_s},
        {u"HotBot"_s, u"/default.asp?MT=WORDS&submit=SEARCH&SM=SC&DV=7&RG=.com&DC=50&DE=2&_v=2&OPs=MDRTP"_s},
        {u"Infoseek"_s, u"/Titles?qt=WORDS&col=WW&sv=IS&lk=lcd&nh=50"_s},
        {u"Lycos"_s, u"/cgi-bin/pursuit?cat=lycos&query=WORDS&x=1&y=14"_s},
        {u"WebCrawler"_s, u"/cgi-bin/WebQuery?searchText=WORDS"_s}};
    for (const auto &[engine, query] : queries) {
        Search(engine, u"Zo\u00EB's 50%"_s);
        EXPECT_EQ(Inet20().Target(), u"http://%1.example"_s.arg(engine) +
                                         QString(query).replace(u"WORDS"_s, u"Zo\u00EB%27s+50%25"_s));
        EXPECT_EQ(State(), u"finding..."_s);
        Answer(u"<html>"_s + engine + u"\r\n"_s);
        EXPECT_EQ(Inet20().sentMethod + State(), u"GETDone!"_s);
        EXPECT_EQ(ReadFileText(PathOf(engine + u"-Search-Results.htm"_s)), u"<html>"_s + engine + u"\r\n"_s);
    }
    program->project.record.txtKey[1].SetText(u"brass"_s);
    Form().Command15_Click();
    EXPECT_EQ(Form().txtKeywords.Text(), u" brass    "_s);
    Search(u"hotbot"_s);
    EXPECT_EQ(Inet20().connects, 6) << "that is no engine's name";
    EXPECT_TRUE(documents.opened.empty());
}

TEST_F(WebSearchTest, ALookUpTurnsTheRedirectorsLinksIntoAbsoluteOnes) {
    program->frmSettings.chkProxy.SetValue(1);
    program->frmSettings.Text1.SetText(u"proxy.example"_s);
    Form().Search_ShowInWebBrowser.SetValue(1);
    Form().txtlink.SetText(u"http://www.page.example"_s);
    Form().ReturnPressed(Form().txtlink);
    EXPECT_EQ(Inet20().Target(),
              u"http://HotBot.example/QX27mKTR9F7714AE3C5DDE172B863F1A9D40C7FB/hResult.html?SW=web&SM=url"
              "&MT=http%3A%2F%2Fwww.page.example&DC=100&DE=2&RG=.com&_v=2&act.search.x=95&act.search.y=7"_s);
    EXPECT_EQ(Inet20().ProxyServer(), u"proxy.example"_s);
    Answer(u"<a href=/director.asp?target=x>\n<A HREF=\"/Director.ASP?target=y\"> \u0081\u00E9"_s);
    EXPECT_EQ(ReadFileText(PathOf(u"HotBot-Who-Links-You.htm"_s)),
              u"<a href=http://HotBotMain.example/director.asp?target=x>\n"
              "<A HREF=\"http://HotBotMain.example/director.asp?target=y\"> \u0081\u00E9"_s);
    EXPECT_EQ(documents.opened.at(0).arguments, QStringList{PathOf(u"HotBot-Who-Links-You.htm"_s)});
}

TEST_F(WebSearchTest, CancelAndErrorFreeThePaneAtEveryStage) {
    const std::function<void()> stages[] = {[] {}, [&] { emit Inet20().Connected(); },
                                            [&] { Inet20().Receive("HTTP/1.1 200 OK\r\n\r\n", "half"); }};
    for (const auto &stage : stages) {
        Search(u"Lycos"_s);
        Search(u"Excite"_s); // dropped, as is the next one
        Form().cmdlink_Click();
        EXPECT_TRUE(Inet20().SaveFile().endsWith(u"search/Lycos-Search-Results.htm"_s));
        stage();
        const int aborts = Inet20().aborts;
        Form().Command17_Click();
        EXPECT_EQ(Inet20().aborts, aborts + 1);
        EXPECT_EQ(State(), u"Canceled"_s);
        Search(u"Lycos"_s);
        EXPECT_EQ(State(), u"finding..."_s);
        stage();
        emit Inet20().Error(61);
        EXPECT_EQ(State() + Form().Failure(), u"ErrorConnection refused"_s);
        Form().Command17_Click();
        EXPECT_EQ(State(), u"Error"_s) << "nothing was left to cancel";
    }
}

TEST_F(WebSearchTest, TheListFollowsItsFolderOpensAnswersAndIsCleared) {
    FileList &list = Form().File1;
    const auto follows = [&list](const QStringList &names) {
        return WaitUntil([&] { return list.Items() == names; });
    };
    Form().Command5_Click();
    EXPECT_EQ(program->frame.ShownPane(), Pane::fraSearch);
    QDir().mkpath(PathOf(u"folder"_s));
    WriteFileText(PathOf(u"b.htm"_s), u"b"_s);
    ASSERT_TRUE(QFile::link(home.filePath(u"hosts.ini"_s), PathOf(u"link.htm"_s)));
    EXPECT_TRUE(follows({u"b.htm"_s, u"link.htm"_s}));
    Form().File1_DblClick();
    list.SetListIndex(0);
    WriteFileText(PathOf(u"a.htm"_s), u"a"_s);
    EXPECT_TRUE(follows({u"a.htm"_s, u"b.htm"_s, u"link.htm"_s}));
    Form().File1_DblClick();
    EXPECT_EQ(documents.opened[0].arguments, QStringList{PathOf({})});
    EXPECT_EQ(documents.opened[1].arguments, QStringList{PathOf(u"b.htm"_s)});

    dialogs.answers = {BoxAnswer::No, BoxAnswer::Yes};
    Form().Command21_Click();
    EXPECT_EQ(list.ListCount(), 3);
    Form().Command21_Click();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_TRUE(QFile::exists(PathOf(u"folder"_s)) && QFile::exists(home.filePath(u"hosts.ini"_s)));
}

} // namespace
