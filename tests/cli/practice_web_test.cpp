#include "park/park_server.h"
#include "support/text_file.h"
#include "tests/cli/cli_fixture.h"

#include <csignal>

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

class PracticeWebTest : public CliFixture {
protected:
    void GivenHosts(const QString &origin) const {
        QString hosts = u"[Search]\n"_s;
        for (const QString &key : engines + QStringList{u"HotBotMain"_s})
            hosts += key + u'=' + origin + u'\n';
        ASSERT_TRUE(WriteFileText(Path(u"home/hosts.ini"_s), hosts));
    }
    void GivenUrls(const QString &siteAddress) {
        SiteDatabaseBuilder sites;
        sites.Site(u"Quillfind"_s)
            .Action(siteAddress)
            .Method(u"post"_s)
            .Query(u"\"URL=\" & txtUrlText & \"&linktext=x&keywords=x&email=a@b.example\""_s);
        GivenProject(sites, {u"chkMultiSameDesc=1"_s});
        ASSERT_EQ(Run({u"urls"_s, u"p.rts"_s, u"http://a.example/"_s, u"http://b.example/"_s}).exitCode, 0);
    }
    const QStringList engines = u"AltaVista Excite HotBot Infoseek Lycos WebCrawler Yahoo"_s.split(u' ');
};

TEST_F(PracticeWebTest, TakesEveryUrlAndAnswersEverySearch) {
    AccessLog log{QString()};
    ParkServer park{0, log};
    ASSERT_TRUE(park.Start(0));
    const QString origin = park.Origin();
    GivenHosts(origin);
    GivenUrls(origin + u"/quillfind/addlink.php"_s);
    EXPECT_EQ(Run({u"submit"_s, u"p.rts"_s, u"--urls"_s}).exitCode, 0);
    const auto &received = park.Content()->Received().Receipts();
    ASSERT_EQ(received.size(), 2U);
    EXPECT_EQ(received[0].outcome + received[1].outcome, u"acceptedaccepted"_s);
    EXPECT_EQ(received[0].fields[0].value, u"http://b.example/"_s);

    for (const QString &engine : engines) {
        const QString page = ReadFileText(Run({u"search"_s, engine, u"quillfind"_s}).Text().trimmed());
        EXPECT_TRUE(page.contains(u"<h1>Results for quillfind</h1>\n<ol>\n<li><p><a href=\""_s + origin));
        EXPECT_EQ(page.count(origin + u"/director.asp?target="_s), engine == u"HotBot" ? 10 : 0);
    }
    const QString links = ReadFileText(Run({u"links"_s, u"http://a.example/"_s}).Text().trimmed());
    EXPECT_EQ(links.count(u"<a href=\""_s + origin + u"/director.asp?target=http%3A%2F%2F"_s), 10);
}

TEST_F(PracticeWebTest, CtrlCEndsTheJobBehindItsUrlAndASearchAtOnce) {
    RawServer silent;
    const QString origin = u"http://127.0.0.1:%1"_s.arg(silent.serverPort());
    GivenHosts(origin);
    GivenUrls(origin);
    for (const QStringList &words : {QStringList{u"submit"_s, u"p.rts"_s, u"--urls"_s, u"--json"_s},
                                     {u"search"_s, u"Lycos"_s, u"hats"_s}}) {
        const int before = silent.connections;
        const auto process = Start(words);
        ASSERT_TRUE(WaitUntil([&] { return silent.connections > before; }));
        kill(static_cast<pid_t>(process->processId()), SIGINT);
        const CommandResult result = Finish(*process);
        EXPECT_EQ(result.exitCode, 130);
        EXPECT_EQ(result.Json()[u"urls"_s].toArray().size(), words.size() == 4 ? 1 : 0);
    }
    EXPECT_TRUE(ReadFileText(Path(u"p/report.htm"_s)).contains(u"report/URL0/report.htm"_s));
}

} // namespace
} // namespace lanterra
