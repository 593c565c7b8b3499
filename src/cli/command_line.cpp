#include "cli/command_line.h"

#include "cli/commands.h"
#include "cli/help_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const Command *FindCommand(const QString &name) {
    const auto found = std::find_if(Commands().begin(), Commands().end(),
                                    [&](const Command &command) { return command.name == name; });
    return found == Commands().end() ? nullptr : &*found;
}

Outcome UnknownCommand(const QString &name) {
    return Outcome::WrongUse(u"There is no command '%1'. All commands: lanterra-cli --help"_s.arg(name));
}

Outcome WithHint(Outcome outcome, const Command &command) {
    if (outcome.code == ExitCode::WrongUse)
        outcome.sentence += u" Help: lanterra-cli help "_s + command.name;
    return outcome;
}

Outcome ArgumentRefusal(const Command &command, qsizetype count) {
    if (count >= command.leastArguments && count <= command.mostArguments)
        return {};
    const QString fault = count < command.leastArguments ? u"Something is missing"_s : u"That is too much"_s;
    return Outcome::WrongUse(u"%1: %2 %3."_s.arg(fault, command.name, command.usage));
}

std::optional<BoxAnswer> GivenAnswer(const QCommandLineParser &parser) {
    if (parser.isSet(u"yes"_s))
        return BoxAnswer::Yes;
    if (parser.isSet(u"no"_s))
        return BoxAnswer::No;
    return {};
}

} // namespace

int CommandLine::Run(const QStringList &arguments) {
    const Outcome outcome = RunProgram(arguments);
    if (!outcome.sentence.isEmpty())
        console.Tell(outcome.sentence);
    if (!console.Finish() && outcome.Good())
        return static_cast<int>(ExitCode::Failed);
    return static_cast<int>(outcome.code);
}

Outcome CommandLine::RunProgram(const QStringList &arguments) {
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOptions(ProgramOptions());
    if (!parser.parse(arguments))
        return Outcome::WrongUse(parser.errorText() + u" Help: lanterra-cli --help"_s);
    if (parser.isSet(u"version"_s)) {
        console.Print(u"lanterra-cli " LANTERRA_VERSION ""_s);
        return {};
    }
    QStringList words = parser.positionalArguments();
    const bool asksForHelp = parser.isSet(u"help"_s) || words.isEmpty() || words.first() == "help"_L1;
    if (!asksForHelp)
        return RunNamed(words, parser.value(u"home"_s));
    words.removeAll(u"help"_s);
    return Help(words);
}

Outcome CommandLine::Help(const QStringList &words) {
    const Command *command = words.isEmpty() ? nullptr : FindCommand(words.first());
    if (!words.isEmpty() && !command)
        return UnknownCommand(words.first());
    console.PrintText(command ? CommandHelp(*command) : GeneralHelp());
    return {};
}

Outcome CommandLine::RunNamed(const QStringList &words, const QString &home) {
    const Command *command = FindCommand(words.first());
    return command ? WithHint(RunCommand(*command, words, home), *command) : UnknownCommand(words.first());
}

Outcome CommandLine::RunCommand(const Command &command, const QStringList &words, const QString &home) {
    QCommandLineParser parser;
    parser.addOptions(command.options + CommonOptions());
    if (!parser.parse(words))
        return Outcome::WrongUse(parser.errorText());
    if (parser.isSet(u"help"_s))
        return Help({command.name});
    if (parser.isSet(u"yes"_s) && parser.isSet(u"no"_s))
        return Outcome::WrongUse(u"--yes and --no exclude each other."_s);
    const QStringList arguments = parser.positionalArguments();
    if (Outcome refusal = ArgumentRefusal(command, arguments.size()); !refusal.Good())
        return refusal;
    return command.run({parser, arguments, GivenAnswer(parser), home, console, doors});
}

} // namespace lanterra
