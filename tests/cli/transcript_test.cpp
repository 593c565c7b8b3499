#include "tests/cli/cli_fixture.h"

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

/// Sessions at a shell, as they stand in transcripts/: commands behind "$ " and "> ", and two columns in what
/// they print on either stream, with the exit code in brackets if it isn't 0. Other lines say what is shown.
class TranscriptTest : public CliFixture, public testing::WithParamInterface<const char *> {
protected:
    TranscriptTest() {
        server.answer = "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello";
        server.then = RawServer::Then::Close;
        environment.insert(u"SERVER"_s, address);
        environment.insert(u"DATA"_s, transcripts);
        environment.insert(u"PATH"_s, QFileInfo(QStringLiteral(LANTERRA_CLI)).path() + u":/usr/bin:/bin"_s);
    }

    QString Played(const QString &commands) const {
        QProcess shell;
        Prepare(shell);
        shell.start(u"bash"_s, {u"-c"_s, u"exec 2>&1\n"_s + commands});
        const CommandResult result = Finish(shell);
        QString text = result.Text()
                           .replace(folder.path(), u"{here}"_s)
                           .replace(transcripts, u"{data}"_s)
                           .replace(u'\n', u"\n  "_s);
        text = text.isEmpty() ? text : u"  "_s + text.chopped(2);
        return result.exitCode == 0 ? text : text + u"  [%1]\n"_s.arg(result.exitCode);
    }

    const QString transcripts = QStringLiteral(TRANSCRIPTS);
    RawServer server;
    const QString address = u"127.0.0.1:%1"_s.arg(server.serverPort());
};

TEST_P(TranscriptTest, ComesOutAsWritten) {
    QFile file(transcripts + u'/' + QLatin1StringView(GetParam()) + u".txt"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString expected = QString::fromUtf8(file.readAll());
    QString played;
    QString commands;
    for (const QString &line : expected.chopped(1).split(u'\n')) {
        const bool goesOn = line.startsWith("> "_L1);
        if (!goesOn && !commands.isEmpty())
            played += Played(std::exchange(commands, {}));
        if (goesOn || line.startsWith("$ "_L1))
            commands += line.mid(2) + u'\n';
        if (!line.startsWith("  "_L1))
            played += line + u'\n';
    }
    EXPECT_EQ(played.toStdString(), expected.toStdString());
}

INSTANTIATE_TEST_SUITE_P(Shell, TranscriptTest,
                         testing::Values("pages", "projects", "runs", "searches", "several_urls", "sites",
                                         "top", "update", "wrong_use"),
                         [](const auto &each) { return std::string(each.param); });

} // namespace
} // namespace lanterra
