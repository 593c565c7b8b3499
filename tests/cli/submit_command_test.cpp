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

    /// A project with one selected site at each server, named by its method.
    void GivenSites(const RawServer &getServer, const RawServer &postServer) {
        const QString query =
            u"\"u=\" & txtUrlText & \"&t=\" & txtTitleText & \"&f=\" & txtFaxText & \"&n=\" & "
            "txtNameText & \"&d=\" & txtDescText & \"&k=\" & Combo2.Text"_s;
        GivenMaster(SiteDatabaseBuilder()
                        .Site(u"Getter"_s)
                        .Action(Address(getServer))
                        .Query(query)
                        .Site(u"Poster"_s)
                        .Action(Address(postServer))
                        .Method(u"post"_s)
                        .Query(query)
                        .Site(u"Idle"_s));
        GivenProject({u"txtTitle=Zo\u00EB's"_s, u"txtDesc=two\nlines"_s, u"Combo2=cats"_s});
        ASSERT_EQ(Run({u"select"_s, u"p.rts"_s, u"Getter"_s, u"Poster"_s}).exitCode, 0);
    }

    /// Seven sites that accept and never answer, two more than there are channels.
    void GivenHangingSites(const RawServer &server) {
        SiteDatabaseBuilder sites;
        for (int i = 1; i <= 7; ++i)
            sites.Site(u"Hanging %1"_s.arg(i)).Action(Address(server));
        GivenMaster(sites);
        GivenProject();
        ASSERT_EQ(Run({u"select"_s, u"p.rts"_s, u"--all"_s}).exitCode, 0);
    }

    QByteArray Preview(const QString &site) const { return Run({u"preview"_s, u"p.rts"_s, site}).output; }

    RawServer first, second;
};

TEST_F(SubmitCommandTest, PreviewPrintsTheBytesThatSubmitSends) {
    AnswerAll(first);
    AnswerAll(second);
    GivenSites(first, second);
    const QByteArray get = Preview(u"Getter"_s);
    const QByteArray post = Preview(u"Poster"_s);
    EXPECT_TRUE(get.startsWith(
        "GET /add?u=http%3A%2F%2Fwww.page.example&t=Zo%EB%27s&f=x&n=x+x&d=two%0Alines&k=Miscellaneous"));
    EXPECT_TRUE(post.endsWith(
        "\r\n\r\nu=http%3A%2F%2Fwww.page.example&t=Zo\xEB%27s&f=x&n=x+x&d=two\nlines&k=Miscellaneous"));
    EXPECT_EQ(Run({u"preview"_s, u"p.rts"_s}).output,
              "==> Getter <==\n" + get + "\n\n==> Poster <==\n" + post + "\n\n");
    ASSERT_EQ(first.connections + second.connections, 0);

    ASSERT_EQ(Run({u"submit"_s, u"p.rts"_s}).exitCode, 0);
    EXPECT_EQ(first.received, get);
    EXPECT_EQ(second.received, post);
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

TEST_F(SubmitCommandTest, CurlCommandsSendTheSameBytes) {
    if (QStandardPaths::findExecutable(u"curl"_s).isEmpty() ||
        QStandardPaths::findExecutable(u"bash"_s).isEmpty())
        GTEST_SKIP() << "needs curl and bash";
    AnswerAll(first);
    AnswerAll(second);
    GivenSites(first, second);
    const QByteArray commands = Run({u"preview"_s, u"p.rts"_s, u"--curl"_s}).output;
    EXPECT_EQ(commands.count('\n'), 2);
    QProcess shell;
    Prepare(shell);
    WriteFile(u"commands.sh"_s, commands);
    shell.start(u"bash"_s, {u"commands.sh"_s});
    ASSERT_EQ(Finish(shell).exitCode, 0);
    // curl spells the name of this one line in its own way.
    EXPECT_EQ(first.received.replace("\r\nHost:", "\r\nHOST:"), Preview(u"Getter"_s));
    EXPECT_EQ(second.received.replace("\r\nHost:", "\r\nHOST:"), Preview(u"Poster"_s));
}

TEST_F(SubmitCommandTest, JsonTellsTheOutcomeOfEverySite) {
    AnswerAll(first, "404 Not Found");
    GivenSites(first, second);
    second.close();
    const CommandResult run = Run({u"submit"_s, u"p.rts"_s, u"--json"_s});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, u""_s) << "progress belongs on a terminal alone";
    QJsonObject json = run.Json();
    EXPECT_GE(json.take(u"milliseconds"_s).toInt(-1), 0);
    EXPECT_GE(json.take(u"seconds"_s).toInt(-1), 0);
    const QJsonArray sites = json.take(u"sites"_s).toArray();
    EXPECT_EQ(json, (QJsonObject{{u"total"_s, 2},
                                 {u"covered"_s, 2},
                                 {u"successful"_s, 0},
                                 {u"failed"_s, 2},
                                 {u"notSelected"_s, 1},
                                 {u"report"_s, Path(u"p/report.htm"_s)}}));
    ASSERT_EQ(sites.size(), 3);
    EXPECT_EQ(sites[0].toObject(), (QJsonObject{{u"name"_s, u"Getter"_s},
                                                {u"verdict"_s, u"failed"_s},
                                                {u"status"_s, 404},
                                                {u"bytes"_s, 5},
                                                {u"page"_s, Path(u"p/report/Getter.htm"_s)},
                                                {u"reason"_s, u"404 Not Found"_s}}));
    EXPECT_EQ(sites[1][u"reason"_s].toString(), u"Connection refused"_s);
    EXPECT_TRUE(sites[1][u"status"_s].isNull());
    EXPECT_EQ(sites[2][u"verdict"_s].toString(), u"not selected"_s);
    EXPECT_EQ(ReadFile(u"p/report/Getter.htm"_s), "hello");
}

TEST_F(SubmitCommandTest, ATextSummaryNamesWhatFailedAndTheReport) {
    AnswerAll(first);
    GivenSites(first, second);
    ASSERT_EQ(Run({u"set"_s, u"p.rts"_s, u"txtLimit=1"_s, u"Check3=1"_s}).exitCode, 0);
    const CommandResult run = Run({u"submit"_s, u"p.rts"_s});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.Text().startsWith(u"failed  Poster  no answer within 1 s\n"
                                      "2 of 2 sites covered: 1 successful, 1 failed; 1 not selected; "_s));
    EXPECT_TRUE(run.Text().endsWith(u"\nReport: "_s + Path(u"p/report.htm"_s) + u'\n'));
    EXPECT_EQ(Run({u"show"_s, u"p.rts"_s, u"--json"_s}).Json()[u"Check3"_s], QJsonValue(1));

    const QJsonObject stats = Run({u"stats"_s, u"p.rts"_s, u"--json"_s}).Json();
    EXPECT_EQ(stats[u"sessions"_s], QJsonValue(1));
    EXPECT_EQ(stats[u"runs"_s][0][u"successfulSites"_s].toArray(), QJsonArray{u"Getter"_s});
    EXPECT_EQ(Run({u"select"_s, u"p.rts"_s, u"--registered"_s}).Text(), u"Selected 22/24\n"_s);
}

TEST_F(SubmitCommandTest, StatisticsAreClearedOnlyWithYes) {
    AnswerAll(first);
    AnswerAll(second);
    GivenSites(first, second);
    Run({u"submit"_s, u"p.rts"_s});
    const CommandResult refused = Run({u"stats"_s, u"p.rts"_s, u"--clear"_s});
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_EQ(refused.errors, u"Zephyrine Lanterra: Are you sure you want to delete project statistics ?\n"
                              "lanterra-cli: Nothing was deleted; --yes deletes the statistics.\n"_s);
    EXPECT_TRUE(Run({u"stats"_s, u"p.rts"_s}).Text().startsWith(u"Number of sessions:    1\n"_s));
    EXPECT_EQ(Run({u"stats"_s, u"p.rts"_s, u"--clear"_s, u"--yes"_s}).exitCode, 0);
    EXPECT_TRUE(Run({u"stats"_s, u"p.rts"_s}).Text().startsWith(u"Number of sessions:    0\n"_s));
}

TEST_F(SubmitCommandTest, ARunThatItsChecksRefuseSendsNothing) {
    GivenSites(first, second);
    Run({u"set"_s, u"p.rts"_s, u"txtCity="_s, u"txtKey6= "_s});
    const CommandResult refused = Run({u"submit"_s, u"p.rts"_s, u"--json"_s});
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(refused.errors, u"Error!: You must fill all text fields\n"
                              "lanterra-cli: These are empty: txtCity, txtKey6.\n"_s);
    EXPECT_EQ(first.connections + second.connections, 0);
}

TEST_F(SubmitCommandTest, AReportThatCantBeWrittenIsToldAfterTheRun) {
    AnswerAll(first);
    AnswerAll(second);
    GivenSites(first, second);
    QDir(folder.path()).mkpath(u"p/report.htm"_s); // a folder stands in its place
    const CommandResult run = Run({u"submit"_s, u"p.rts"_s});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors,
              u"lanterra-cli: The report could not be written: "_s + Path(u"p/report.htm"_s) + u'\n');
    EXPECT_TRUE(run.Text().contains(u"2 successful"_s));
}

TEST_F(SubmitCommandTest, CtrlCEndsTheRunWithItsReport) {
    for (const int signal : {SIGINT, SIGTERM}) {
        GivenHangingSites(first);
        const auto process = Start({u"submit"_s, u"p.rts"_s, u"--json"_s});
        const int before = first.connections;
        ASSERT_TRUE(WaitUntil([&] { return first.connections == before + 5; }));
        kill(static_cast<pid_t>(process->processId()), signal);
        const CommandResult run = Finish(*process);
        EXPECT_EQ(run.exitCode, 130);
        EXPECT_EQ(run.Json()[u"covered"_s], QJsonValue(0));
        EXPECT_EQ(run.Json()[u"sites"_s][6][u"verdict"_s].toString(), u"none"_s);
        EXPECT_EQ(run.Json()[u"sites"_s][6][u"reason"_s].toString(), u"the run was cancelled"_s);
        EXPECT_TRUE(QFile::exists(Path(u"p/report.htm"_s)));
        EXPECT_FALSE(QFile::exists(Path(u"p.rts-journal"_s)));
        QDir(folder.path()).remove(u"p.rts"_s);
    }
}

TEST_F(SubmitCommandTest, ASecondCtrlCEndsTheProcess) {
    GivenHangingSites(first);
    const auto process = Start({u"submit"_s, u"p.rts"_s});
    ASSERT_TRUE(WaitUntil([&] { return first.connections == 5; }));
    const auto id = static_cast<pid_t>(process->processId());
    for (const int signal : {SIGSTOP, SIGINT, SIGTERM, SIGCONT}) // both wait for it when it goes on
        kill(id, signal);
    const CommandResult run = Finish(*process);
    EXPECT_EQ(run.exitCode, -1);
    EXPECT_EQ(run.output, "");
}

/// Standard error of a run on a terminal.
class SubmitProgressTest : public SubmitCommandTest {
protected:
    QByteArray ErrorsOnTerminal(const QString &terminal) {
        int ours = -1;
        int theirs = -1;
        EXPECT_EQ(openpty(&ours, &theirs, nullptr, nullptr, nullptr), 0);
        QProcess process;
        Prepare(process);
        environment.insert(u"TERM"_s, terminal);
        process.setProcessEnvironment(environment);
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
