#include "cli/help_text.h"

#include "cli/commands.h"
#include "cli/text_table.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// The texts are resources in UTF-8: general.txt and one for each command.
QString ReadHelp(const QString &name) {
    QFile file(u":/cli/help/%1.txt"_s.arg(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList OptionRow(const QCommandLineOption &option) {
    QStringList names;
    for (const QString &name : option.names())
        names << (name.size() == 1 ? u"-"_s : u"--"_s) + name;
    const QString value = option.valueName().isEmpty() ? QString() : u' ' + option.valueName();
    return {u"  "_s + names.join(", "_L1) + value, option.description()};
}

QString OptionLines(const QList<QCommandLineOption> &options) {
    QList<QStringList> rows;
    for (const QCommandLineOption &option : options)
        rows << OptionRow(option);
    return AlignedLines(rows).join(u'\n') + u'\n';
}

QString CommandLines() {
    QList<QStringList> rows;
    for (const Command &command : Commands())
        rows << QStringList{u"  "_s + command.name, command.summary};
    rows << QStringList{u"  help"_s, u"explain a command: lanterra-cli help COMMAND"_s};
    return AlignedLines(rows).join(u'\n') + u'\n';
}

} // namespace

QList<QCommandLineOption> CommonOptions() {
    return {{u"yes"_s, u"answer questions with Yes"_s},
            {u"no"_s, u"answer questions with No"_s},
            {{u"h"_s, u"help"_s}, u"explain the command"_s}};
}

QList<QCommandLineOption> ProgramOptions() {
    return {{u"home"_s, u"the program's folder, which holds the site database ng.dll"_s, u"DIR"_s},
            {{u"h"_s, u"help"_s}, u"print this help"_s},
            {{u"v"_s, u"version"_s}, u"print the version"_s}};
}

QString GeneralHelp() { return ReadHelp(u"general"_s).arg(CommandLines(), OptionLines(ProgramOptions())); }

QString CommandHelp(const Command &command) {
    return u"Usage: lanterra-cli %1 %2\n\n%3\nOptions:\n%4"_s.arg(
        command.name, command.usage, ReadHelp(command.name), OptionLines(command.options + CommonOptions()));
}

} // namespace lanterra
