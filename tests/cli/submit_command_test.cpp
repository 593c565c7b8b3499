#include "tests/cli/cli_fixture.h"

#include <QStandardPaths>
#include <csignal>
#include <pty.h>
#include <unistd.h>

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

class SubmitCommandTest : public CliFixture {
protected:
    static QString Address(const RawServer &server) {
        return u"http://127.0.0.1:%1/add"_s.arg(server.serverPort());
    }
    static void AnswerAll(RawServer &server, const QByteArray &status = "200 OK") {
        server.answer = "HTTP/1.1 " + status + "\r\nContent-Length: 5\r\n\r\nhello";
        server.then = RawServer::Then::Close;
    }

    /// A project with one site at each server, named by its method, and all sites selected.
    void GivenSites(const RawServer &getServer, const RawServer &postServer) {
        const QString query =
            u"\"u=\" & txtUrlText & \"&t=\" & txtTitleText & \"&d=\" & txtDescText & \"&k=\" & Combo2.Text"_s;
        SiteDatabaseBuilder sites;
        sites.Site(u"Getter"_s).Action(Address(getServer)).Query(query);
        sites.Site(u"Poster"_s).Action(Address(postServer)).Method(u"post"_s).Query(query);
        GivenProject(sites, {u"txtTitle=Zo\u00EB's"_s, u"txtDesc=two\nlines"_s, u"Combo2=cats"_s});
    }

    /// Seven sites that accept and never answer, two more than there are channels.
    void GivenHangingSites(const RawServer &server) {
        SiteDatabaseBuilder sites;
        for (int i = 1; i <= 7; ++i)
            sites.Site(u"Hanging %1"_s.arg(i)).Action(Address(server));
        GivenProject(sites);
    }

    QByteArray Preview(const QString &site) const { return Run({u"preview"_s, u"p.rts"_s, site}).output; }

    RawServer first, second;
};

TEST_F(SubmitCommandTest, PreviewPrintsTheBytesThatSubmitAndCurlSend) {
    AnswerAll(first);
    AnswerAll(second);
    GivenSites(first, second);
    const QByteArray get = Preview(u"Getter"_s);
    const QByteArray post = Preview(u"Poster"_s);
    ASSERT_EQ(first.connections + second.connections, 0);
    ASSERT_EQ(Run({u"submit"_s, u"p.rts"_s}).exitCode, 0);
    EXPECT_EQ(first.received, get);
    EXPECT_EQ(second.received, post);

    if (QStandardPaths::findExecutable(u"curl"_s).isEmpty())
        GTEST_SKIP() << "needs curl";
    first.received.clear();
    second.received.clear();
    QProcess shell;
    Prepare(shell);
    WriteFile(u"commands.sh"_s, Run({u"preview"_s, u"p.rts"_s, u"--curl"_s}).output);
    shell.start(u"bash"_s, {u"commands.sh"_s});
    ASSERT_EQ(Finish(shell).exitCode, 0);
    // curl spells the name of this one line in its own way.
    EXPECT_EQ(first.received.replace("\r\nHost:", "\r\nHOST:"), get);
    EXPECT_EQ(second.received.replace("\r\nHost:", "\r\nHOST:"), post);
}

TEST_F(SubmitCommandTest, PreviewKnowsTheProxyOfTheSettings) {
    RawServer proxy;
    AnswerAll(proxy);
    GivenSites(first, second);
    QDir(folder.path()).mkpath(u"config"_s);
    WriteFile(u"config/Lanterra.ini"_s,
              "[Settings]\nUseProxy=1\nPSN=127.0.0.1\nPORT=" + QByteArray::number(proxy.serverPort()) + '\n');
    ASSERT_EQ(Run({u"select"_s, u"p.rts"_s, u"Poster"_s}).exitCode, 0);
    const QByteArray post = Preview(u"Poster"_s);
    EXPECT_TRUE(post.startsWith("POST " + Address(second).toLatin1() + " HTTP/1.1\r\n"));
    ASSERT_EQ(Run({u"submit"_s, u"p.rts"_s}).exitCode, 0);
    EXPECT_EQ(proxy.received, post);
}

TEST_F(SubmitCommandTest, HostileNamesAndStatusLinesBreakNeitherJsonNorTheTerminal) {
    const QString name = u"A \x1B[2J\u009B \"{%1}\\ \u2028"_s;
    AnswerAll(first, "404 No\x1B[31m \x9B\"}, {\\ %1");
    GivenProject(SiteDatabaseBuilder().Site(name).Action(Address(first)));
    const CommandResult json = Run({u"submit"_s, u"p.rts"_s, u"--json"_s});
    const QString text = json.Text();
    EXPECT_TRUE(std::none_of(text.cbegin(), text.cend(), [](QChar character) {
        return character.category() == QChar::Other_Control && character != u'\n';
    })) << text.toStdString();
    EXPECT_EQ(json.Json()[u"sites"_s][0][u"name"_s].toString(), name);
    EXPECT_EQ(json.Json()[u"sites"_s][0][u"reason"_s].toString(), u"404 No\x1B[31m \u203A\"}, {\\ %1"_s);
    const CommandResult shown = Run({u"submit"_s, u"p.rts"_s});
    EXPECT_TRUE(
        shown.Text().startsWith(u"failed  A ?[2J? \"{%1}\\ \u2028  404 No?[31m \u203A\"}, {\\ %1\n"_s));
}

TEST_F(SubmitCommandTest, CtrlCEndsTheRunWithItsReportAndASecondOneTheProcess) {
    // A process that was stopped takes all that wait for it when it goes on.
    for (const QList<int> &sent : {QList{SIGINT}, {SIGTERM}, {SIGSTOP, SIGINT, SIGTERM, SIGCONT}}) {
        const bool twice = sent.size() > 1;
        GivenHangingSites(first);
        QFile::remove(Path(u"p/report.htm"_s));
        const int before = first.connections;
        const auto process = Start({u"submit"_s, u"p.rts"_s, u"--json"_s});
        ASSERT_TRUE(WaitUntil([&] { return first.connections == before + 5; }));
        for (const int signal : sent)
            kill(static_cast<pid_t>(process->processId()), signal);
        const CommandResult run = Finish(*process);
        EXPECT_EQ(run.exitCode, twice ? -1 : 130);
        EXPECT_EQ(run.Json()[u"covered"_s].toInt(-1), twice ? -1 : 0);
        const QJsonValue last = run.Json()[u"sites"_s][6];
        EXPECT_EQ(last[u"verdict"_s].toString(), twice ? QString() : u"none"_s);
        EXPECT_EQ(last[u"reason"_s].toString(), twice ? QString() : u"the run was cancelled"_s);
        EXPECT_EQ(QFile::exists(Path(u"p/report.htm"_s)), !twice);
        EXPECT_FALSE(QFile::exists(Path(u"p.rts-journal"_s)));
    }
}

/// Standard error of a run on a terminal.
class SubmitProgressTest : public SubmitCommandTest {
protected:
    QByteArray ErrorsOnTerminal(const QString &terminal) {
        int ours = -1;
        int theirs = -1;
        EXPECT_EQ(openpty(&ours, &theirs, nullptr, nullptr, nullptr), 0);
        environment.insert(u"TERM"_s, terminal);
        QProcess process;
        Prepare(process);
        process.setChildProcessModifier([theirs] { dup2(theirs, STDERR_FILENO); });
        process.start(QStringLiteral(LANTERRA_CLI), {u"submit"_s, u"p.rts"_s});
        EXPECT_EQ(Finish(process).exitCode, 0);
        close(theirs);
        QFile read;
        EXPECT_TRUE(read.open(ours, QIODevice::ReadOnly, QFile::AutoCloseHandle));
        return read.readAll();
    }
};

TEST_F(SubmitProgressTest, ATerminalSeesChannelsAndABar) {
    AnswerAll(first);
    GivenSites(first, second);
    Run({u"set"_s, u"p.rts"_s, u"txtLimit=1"_s});
    const QByteArray coloured = ErrorsOnTerminal(u"xterm"_s);
    EXPECT_TRUE(coloured.contains("1  \x1B[32mdone!\x1B[0m            Getter"));
    EXPECT_TRUE(coloured.contains("2  connected        Poster"));
    EXPECT_TRUE(coloured.contains("[###############...............] 1/2, 1 successful, 0 failed"));
    EXPECT_TRUE(coloured.endsWith("\x1B[6A\r\x1B[J")) << "the drawing stays behind";
    EXPECT_EQ(ErrorsOnTerminal(u"dumb"_s), "");
    environment.insert(u"NO_COLOR"_s, u"1"_s);
    const QByteArray plain = ErrorsOnTerminal(u"xterm"_s);
    EXPECT_TRUE(plain.contains("1  done!            Getter"));
    EXPECT_FALSE(plain.contains("\x1B[32m"));
}

} // namespace
} // namespace lanterra
