#include "tests/fakes/program_fixture.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class WebSearchTest : public ProgramFixture {
protected:
    WebSearchTest() {
        WriteFile(u"hosts.ini"_s,
                  "[Search]\nAltaVista=http://altavista.example/\nExcite=http://excite.example\n"
                  "HotBot=http://search.hotbot.example\nHotBotMain=http://hotbot.example\n"
                  "Infoseek=http://infoseek.example\nLycos=http://lycos.example\n"
                  "WebCrawler=http://webcrawler.example\n");
        StartProgram();
    }

    WebSearch &Form() { return program->webSearch; }
    /// The client of the pane, once it was asked for an answer.
    FakeHttpClient &Inet20() {
        for (FakeHttpClient *client : clients) {
            if (client->SaveFile().contains(u"/search/"_s))
                return *client;
        }
        throw std::logic_error("nothing was asked");
    }
    int Connects() const {
        int count = 0;
        for (const FakeHttpClient *client : clients)
            count += client->connects;
        return count;
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
    void WriteFile(const QString &name, const QByteArray &bytes) const {
        QFile file(home.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray Saved(const QString &name) const {
        QFile file(home.filePath(u"search/"_s + name + u".htm"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QString State() { return Form().Label27.Caption(); }
};

TEST_F(WebSearchTest, AsksEachEngineAtItsOwnAddressAndKeepsItsAnswer) {
    EXPECT_EQ(Form().cobEngine.Entries().join(u' '),
              u"AltaVista Excite HotBot Infoseek Lycos WebCrawler Yahoo"_s);
    const struct {
        QString engine, address;
    } cases[] = {
        {u"AltaVista"_s, u"http://altavista.example/cgi-bin/query?pg=q&what=web&kl=XX&q=Zo\u00EB%27s+50%25"
                         "&search.x=38&search.y=9"_s},
        {u"Excite"_s, u"http://excite.example/search.gw?trace=a&search=Zo\u00EB%27s+50%25"_s},
        {u"HotBot"_s, u"http://search.hotbot.example/default.asp?MT=Zo\u00EB%27s+50%25"
                      "&submit=SEARCH&SM=SC&DV=7&RG=.com&DC=50&DE=2&_v=2&OPs=MDRTP"_s},
        {u"Infoseek"_s, u"http://infoseek.example/Titles?qt=Zo\u00EB%27s+50%25&col=WW&sv=IS&lk=lcd&nh=50"_s},
        {u"Lycos"_s, u"http://lycos.example/cgi-bin/pursuit?cat=lycos&query=Zo\u00EB%27s+50%25&x=1&y=14"_s},
        {u"WebCrawler"_s, u"http://webcrawler.example/cgi-bin/WebQuery?searchText=Zo\u00EB%27s+50%25"_s},
    };
    for (const auto &each : cases) {
        Search(each.engine, u"Zo\u00EB's 50%"_s);
        EXPECT_EQ(Inet20().Target(), each.address);
        EXPECT_EQ(State(), u"finding..."_s);
        emit Inet20().Connected();
        EXPECT_EQ(State(), u"Connected"_s);
        EXPECT_EQ(Inet20().sentMethod, u"GET"_s);
        Answer(u"<html>"_s + each.engine + u"\r\n"_s);
        EXPECT_EQ(State(), u"Done!"_s);
        EXPECT_EQ(Saved(each.engine + u"-Search-Results"_s), "<html>" + each.engine.toLatin1() + "\r\n");
    }
    EXPECT_TRUE(documents.opened.empty());
}

TEST_F(WebSearchTest, TurnsTheRedirectorsLinksIntoAbsoluteOnes) {
    Form().Search_ShowInWebBrowser.SetValue(1);
    Form().txtlink.SetText(u"http://www.page.example"_s);
    EXPECT_TRUE(Form().ReturnPressed(Form().txtlink));
    EXPECT_EQ(
        Inet20().Target(),
        u"http://search.hotbot.example/QX27mKTR9F7714AE3C5DDE172B863F1A9D40C7FB/hResult.html?SW=web&SM=url"
        "&MT=http%3A%2F%2Fwww.page.example&DC=100&DE=2&RG=.com&_v=2&act.search.x=95&act.search.y=7"_s);
    Answer(u"<a href=/director.asp?target=x>\n<A HREF=\"/Director.ASP?target=y\"> \u0081\u00E9"_s);
    EXPECT_EQ(Saved(u"HotBot-Who-Links-You"_s),
              "<a href=http://hotbot.example/director.asp?target=x>\n"
              "<A HREF=\"http://hotbot.example/director.asp?target=y\"> \x81\xE9");
    ASSERT_EQ(documents.opened.size(), 1U);
    EXPECT_EQ(documents.opened[0].arguments,
              QStringList{home.filePath(u"search/HotBot-Who-Links-You.htm"_s)});
}

TEST_F(WebSearchTest, AFurtherQuestionDuringATransferIsDropped) {
    Search(u"Lycos"_s);
    Search(u"Excite"_s);
    Form().cmdlink_Click();
    EXPECT_EQ(Connects(), 1);
    Answer(u"answer"_s);
    EXPECT_EQ(Saved(u"Lycos-Search-Results"_s), "answer");
    EXPECT_EQ(Saved(u"Excite-Search-Results"_s), "");
}

TEST_F(WebSearchTest, CancelAndErrorFreeThePaneAtEveryStage) {
    Form().Command17_Click();
    EXPECT_EQ(State(), u""_s);
    const std::function<void()> stages[] = {[] {}, [&] { emit Inet20().Connected(); },
                                            [&] {
                                                emit Inet20().Connected();
                                                Inet20().Receive("HTTP/1.1 200 OK\r\n\r\n", "half");
                                            }};
    int connects = 0;
    for (const auto &stage : stages) {
        Search(u"Lycos"_s);
        stage();
        const int aborts = Inet20().aborts;
        Form().Command17_Click();
        EXPECT_EQ(Inet20().aborts, aborts + 1);
        EXPECT_EQ(State(), u"Canceled"_s);
        Search(u"Lycos"_s);
        stage();
        emit Inet20().Error(61);
        EXPECT_EQ(State(), u"Error"_s);
        EXPECT_EQ(Form().Failure(), u"Connection refused"_s);
        EXPECT_EQ(Connects(), connects += 2);
    }
    QDir(home.filePath(u"search"_s)).removeRecursively();
    Search(u"Lycos"_s);
    QDir().mkpath(home.filePath(u"search/Lycos-Search-Results.htm/in the way"_s));
    Answer(u"answer"_s);
    EXPECT_EQ(State(), u"Error"_s) << "the answer could not be written";
    EXPECT_FALSE(Form().SearchBusy());
}

TEST_F(WebSearchTest, WithoutAHostOrAnEngineNothingIsSent) {
    Search(u"hotbot"_s);
    EXPECT_EQ(State(), u""_s);
    Search(u"Yahoo"_s);
    EXPECT_EQ(State(), u"Error"_s);
    EXPECT_EQ(Form().Failure(), u"hosts.ini has no address for this search engine"_s);
    EXPECT_FALSE(Form().SearchBusy());
    Form().Command24_Click();
    EXPECT_EQ(Connects(), 0);
    EXPECT_TRUE(documents.opened.empty());
}

TEST_F(WebSearchTest, TakesTheProxyAndTheProjectsKeywords) {
    program->frmSettings.chkProxy.SetValue(1);
    program->frmSettings.Text1.SetText(u"proxy.example"_s);
    program->frmSettings.Text2.SetText(u"3128"_s);
    program->project.record.txtKey[0].SetText(u"storm lamps"_s);
    program->project.record.txtKey[2].SetText(u"brass"_s);
    Form().Command15_Click();
    EXPECT_TRUE(Form().ReturnPressed(Form().txtKeywords));
    EXPECT_TRUE(Inet20().Target().contains(u"q=storm+lamps++brass+++&"_s));
    EXPECT_EQ(Inet20().ProxyServer(), u"proxy.example"_s);
    EXPECT_EQ(Inet20().ProxyPort(), 3128);
    EXPECT_FALSE(Form().ReturnPressed(program->project.record.txtURL));
}

TEST_F(WebSearchTest, TheListFollowsTheFolderOpensAndClearsIt) {
    FileList &list = Form().File1;
    Form().Command5_Click();
    EXPECT_EQ(program->frame.ShownPane(), Pane::fraSearch);
    Form().File1_DblClick();
    EXPECT_EQ(documents.opened.back().arguments, QStringList{home.filePath(u"search/"_s)});
    WriteFile(u"kept.txt"_s, "kept");
    WriteFile(u"search/b.htm"_s, "b");
    ASSERT_TRUE(QFile::link(home.filePath(u"kept.txt"_s), home.filePath(u"search/link.htm"_s)));
    QDir().mkpath(home.filePath(u"search/folder"_s));
    const auto follows = [&](const QStringList &names) {
        const QDeadlineTimer deadline(std::chrono::seconds(10));
        while (list.Items() != names && !deadline.hasExpired())
            QCoreApplication::processEvents();
        return list.Items() == names;
    };
    EXPECT_TRUE(follows({u"b.htm"_s, u"link.htm"_s}));
    list.SetListIndex(0);
    WriteFile(u"search/a.htm"_s, "a");
    EXPECT_TRUE(follows({u"a.htm"_s, u"b.htm"_s, u"link.htm"_s}));
    Form().File1_DblClick();
    EXPECT_EQ(documents.opened.back().arguments, QStringList{home.filePath(u"search/b.htm"_s)});

    dialogs.answers = {BoxAnswer::No, BoxAnswer::Yes};
    Form().Command21_Click();
    EXPECT_EQ(dialogs.boxes[0].text, u"Delete search files ?"_s);
    EXPECT_EQ(dialogs.boxes[0].defaultAnswer, BoxAnswer::No);
    EXPECT_EQ(list.ListCount(), 3);
    Form().Command21_Click();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(QDir(home.filePath(u"search"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{u"folder"_s});
    EXPECT_TRUE(QFile::exists(home.filePath(u"kept.txt"_s)));
}

} // namespace
