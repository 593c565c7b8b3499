#include "park/park_server.h"
#include "tests/cli/cli_fixture.h"

#include <csignal>

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

/// Commands that work with the practice web, which runs in the process of the test.
class PracticeWebTest : public CliFixture {
protected:
    PracticeWebTest() {
        EXPECT_TRUE(park.Start(0));
        GivenHosts(park.Origin());
    }

    void GivenHosts(const QString &origin) const {
        QByteArray hosts = "[Search]\n";
        for (const char *key :
             {"AltaVista", "Excite", "HotBot", "HotBotMain", "Infoseek", "Lycos", "WebCrawler"})
            hosts += key + ('=' + origin.toLatin1()) + '\n';
        WriteFile(u"home/hosts.ini"_s, hosts);
    }
    void GivenUrls(const QString &siteAddress, const QStringList &urls) {
        SiteDatabaseBuilder sites;
        sites.Site(u"Quillfind"_s)
            .Action(siteAddress)
            .Method(u"post"_s)
            .Query(u"\"URL=\" & txtUrlText & \"&linktext=\" & txtTitleText & \"&keywords=\" & AllKeywords & "
                   "\"&email=\" & txtEmailText"_s);
        GivenProject(sites, {u"txtEmail=a@b.example"_s});
        ASSERT_EQ(Run(QStringList{u"urls"_s, u"p.rts"_s} + urls).exitCode, 0);
    }
    QByteArray ReadFile(const QString &name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    qsizetype Accepted() const {
        const auto &receipts = park.Content()->Received().Receipts();
        return std::count_if(receipts.begin(), receipts.end(),
                             [](const Receipt &receipt) { return receipt.outcome == u"accepted"; });
    }

    AccessLog log{QString()};
    ParkServer park{0, log};
};

TEST_F(PracticeWebTest, SubmitsEveryUrlOfAProject) {
    GivenUrls(park.Origin() + u"/quillfind/addlink.php"_s,
              {u"http://a.example/"_s, u"http://b.example/"_s, u"http://c.example/"_s});
    const CommandResult refused = Run({u"submit"_s, u"p.rts"_s, u"--urls"_s});
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_EQ(refused.errors,
              u"Error!:  Please fill all text fields for each URL separately \n"
              "lanterra-cli: Let all of them share the texts of the first one with: lanterra-cli set FILE "
              "chkMultiSameDesc=1\n"_s);
    ASSERT_EQ(Run({u"set"_s, u"p.rts"_s, u"chkMultiSameDesc=1"_s}).exitCode, 0);

    const CommandResult job = Run({u"submit"_s, u"p.rts"_s, u"--urls"_s, u"--json"_s});
    EXPECT_EQ(job.exitCode, 0) << job.errors.toStdString();
    EXPECT_EQ(job.Json()[u"report"_s].toString(), Path(u"p/report.htm"_s));
    const QJsonArray urls = job.Json()[u"urls"_s].toArray();
    ASSERT_EQ(urls.size(), 3);
    EXPECT_EQ(urls[2][u"url"_s].toString(), u"http://c.example/"_s);
    EXPECT_EQ(urls[2][u"successful"_s].toInt(), 1);
    EXPECT_EQ(urls[2][u"report"_s].toString(), Path(u"p/report/URL2/report.htm"_s));
    EXPECT_EQ(Accepted(), 3);

    ASSERT_EQ(Run({u"set"_s, u"p.rts"_s, u"txtCity="_s}).exitCode, 0);
    const CommandResult unfilled = Run({u"submit"_s, u"p.rts"_s, u"--urls"_s});
    EXPECT_EQ(unfilled.exitCode, 3);
    EXPECT_EQ(unfilled.Text(), u"==> http://a.example/ <==\n==> http://b.example/ <==\n==> http://c.example/ "
                               "<==\nAll reports: "_s +
                                   Path(u"p/report.htm"_s) + u'\n');
    EXPECT_EQ(Run({u"urls"_s, u"p.rts"_s, u"http://a.example/"_s}).exitCode, 0);
    EXPECT_TRUE(
        Run({u"submit"_s, u"p.rts"_s, u"--urls"_s}).errors.endsWith(u"Set them with: lanterra-cli urls\n"_s));
}

TEST_F(PracticeWebTest, CtrlCEndsTheJobBehindItsUrlAndASearchAtOnce) {
    RawServer silent;
    const QString origin = u"http://127.0.0.1:%1"_s.arg(silent.serverPort());
    GivenHosts(origin);
    GivenUrls(origin + u"/add"_s, {u"http://a.example/"_s, u"http://b.example/"_s});
    ASSERT_EQ(Run({u"set"_s, u"p.rts"_s, u"chkMultiSameDesc=1"_s}).exitCode, 0);
    int connections = 0;
    for (const QStringList &words : {QStringList{u"submit"_s, u"p.rts"_s, u"--urls"_s, u"--json"_s},
                                     {u"search"_s, u"Lycos"_s, u"hats"_s}}) {
        const auto process = Start(words);
        ++connections;
        ASSERT_TRUE(WaitUntil([&] { return silent.connections == connections; }));
        kill(static_cast<pid_t>(process->processId()), SIGINT);
        const CommandResult result = Finish(*process);
        EXPECT_EQ(result.exitCode, 130);
        EXPECT_EQ(result.Json()[u"urls"_s].toArray().size(), words.contains(u"--urls"_s) ? 1 : 0);
    }
    EXPECT_TRUE(ReadFile(u"p/report.htm"_s).contains("report/URL0/report.htm"));
    EXPECT_EQ(silent.connections, 2);
}

TEST_F(PracticeWebTest, SearchesKeepTheAnswersOfTheEngines) {
    for (const QString &engine :
         {u"AltaVista"_s, u"Excite"_s, u"hotbot"_s, u"Infoseek"_s, u"Lycos"_s, u"WebCrawler"_s}) {
        const CommandResult result = Run({u"search"_s, engine, u"quillfind"_s, u"& more"_s});
        EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
        EXPECT_TRUE(result.Text().startsWith(Path(u"home/search/"_s))) << result.Text().toStdString();
        const QByteArray page = ReadFile(result.Text().trimmed().mid(folder.path().size() + 1));
        EXPECT_TRUE(page.contains("<h1>Results for quillfind &amp; more</h1>\n<ol>\n<li><p><a href=\"" +
                                  park.Origin().toLatin1()))
            << page.toStdString();
        EXPECT_EQ(page.count("/director.asp?target="), engine == u"hotbot" ? 10 : 0);
    }
    const QJsonObject links = Run({u"links"_s, u"http://a.example/"_s, u"--json"_s}).Json();
    EXPECT_EQ(links[u"file"_s].toString(), Path(u"home/search/HotBot-Who-Links-You.htm"_s));
    const QByteArray page = ReadFile(u"home/search/HotBot-Who-Links-You.htm"_s);
    EXPECT_EQ(links[u"bytes"_s].toInteger(), page.size());
    EXPECT_EQ(page.count("<a href=\"" + park.Origin().toLatin1() + "/director.asp?target=http%3A%2F%2F"), 10);
    EXPECT_EQ(park.Content()->Received().Total(), 7);
}

TEST_F(PracticeWebTest, ASearchWithoutAnAnswerTellsWhy) {
    const CommandResult unknown = Run({u"search"_s, u"Farseek"_s, u"hats"_s});
    EXPECT_EQ(unknown.exitCode, 1);
    EXPECT_EQ(unknown.errors,
              u"lanterra-cli: There is no search engine Farseek. These are known: AltaVista, Excite, "
              "HotBot, Infoseek, Lycos, WebCrawler, Yahoo.\n"_s);
    EXPECT_EQ(Run({u"search"_s, u"Yahoo"_s, u"hats"_s}).errors,
              u"lanterra-cli: No answer: hosts.ini has no address for this search engine.\n"_s);
    park.close();
    const CommandResult closed = Run({u"links"_s, u"http://a.example/"_s});
    EXPECT_EQ(closed.exitCode, 1);
    EXPECT_EQ(closed.errors, u"lanterra-cli: No answer: Connection refused.\n"_s);
    EXPECT_EQ(closed.output, "");
}

} // namespace
} // namespace lanterra
