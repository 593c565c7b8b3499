#include "cli/commands.h"
#include "tests/cli/cli_fixture.h"

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

class HelpTest : public CliFixture {};

TEST_F(HelpTest, ListsEveryCommand) {
    const QString help = Run({}).Text();
    for (const auto *name : {"new", "set", "show", "urls", "sites", "select", "category", "preview", "submit",
                             "stats", "sitedb"})
        EXPECT_TRUE(help.contains(u"\n  "_s + QLatin1StringView(name) + u' ')) << name;
    EXPECT_EQ(Run({u"--help"_s}).Text(), help);
    EXPECT_EQ(Run({u"help"_s}).Text(), help);
    EXPECT_EQ(Run({u"--version"_s}).Text(), u"lanterra-cli 2.14\n"_s);
}

TEST_F(HelpTest, ExplainsEachCommandInTwoWays) {
    for (const Command &command : Commands()) {
        const CommandResult help = Run({u"help"_s, command.name});
        EXPECT_EQ(help.exitCode, 0);
        EXPECT_TRUE(help.Text().startsWith(u"Usage: lanterra-cli "_s + command.name + u' '));
        EXPECT_TRUE(help.Text().contains(u".\n"_s))
            << "no sentence that explains " << command.name.toStdString();
        EXPECT_EQ(Run({command.name, u"--help"_s}).Text(), help.Text());
    }
}

struct WrongUse {
    QStringList arguments;
    QString sentence;
};

TEST_F(HelpTest, WrongUseIsOneLineThatLeadsToHelp) {
    const QList<WrongUse> cases{
        {{u"frobnicate"_s}, u"There is no command 'frobnicate'. All commands: lanterra-cli --help"_s},
        {{u"help"_s, u"frobnicate"_s},
         u"There is no command 'frobnicate'. All commands: lanterra-cli --help"_s},
        {{u"--frob"_s}, u"Unknown option 'frob'. Help: lanterra-cli --help"_s},
        {{u"--home"_s}, u"Missing value after '--home'. Help: lanterra-cli --help"_s},
        {{u"show"_s, u"p.rts"_s, u"--frob"_s}, u"Unknown option 'frob'. Help: lanterra-cli help show"_s},
        {{u"new"_s}, u"Something is missing: new FILE [FIELD=VALUE ...]. Help: lanterra-cli help new"_s},
        {{u"show"_s, u"p.rts"_s, u"q.rts"_s},
         u"That is too much: show FILE [--json]. Help: lanterra-cli help show"_s},
        {{u"stats"_s, u"p.rts"_s, u"--yes"_s, u"--no"_s},
         u"--yes and --no exclude each other. Help: lanterra-cli help stats"_s},
        {{u"select"_s, u"p.rts"_s},
         u"Give either one option that selects or the names of sites. Help: lanterra-cli help select"_s},
        {{u"select"_s, u"p.rts"_s, u"--all"_s, u"--none"_s},
         u"Give either one option that selects or the names of sites. Help: lanterra-cli help select"_s},
        {{u"category"_s, u"p.rts"_s, u"A=B"_s, u"--keyword"_s, u"w"_s},
         u"Give either --keyword or categories. Help: lanterra-cli help category"_s},
        {{u"sitedb"_s, u"build"_s, u"a"_s},
         u"A site database is worked with build SOURCE OUT, dump FILE or check FILE. Help: lanterra-cli help sitedb"_s},
        {{u"new"_s, u"p.txt"_s},
         u"The name of a project ends in .rts, not so: p.txt. Help: lanterra-cli help new"_s}};
    GivenMaster(SiteDatabaseBuilder().Site(u"Alta"_s));
    for (const WrongUse &wrong : cases) {
        const CommandResult result = Run(wrong.arguments);
        EXPECT_EQ(result.exitCode, 2) << wrong.sentence.toStdString();
        EXPECT_EQ(result.errors, u"lanterra-cli: "_s + wrong.sentence + u'\n');
        EXPECT_EQ(result.output, "");
    }
}

TEST_F(HelpTest, LostOutputIsAFailure) {
    const auto process = std::make_unique<QProcess>();
    Prepare(*process);
    process->setStandardOutputFile(u"/dev/full"_s);
    process->start(QStringLiteral(LANTERRA_CLI), {u"--help"_s});
    EXPECT_EQ(Finish(*process).exitCode, 1);
}

} // namespace
} // namespace lanterra
