#pragma once

#include "cli/command.h"

namespace lanterra {

/// Reads the arguments of the process, finds the command and runs it.
class CommandLine {
public:
    /// Both must outlive this.
    CommandLine(Console &standardStreams, const SystemDoors &systemDoors)
        : console(standardStreams), doors(systemDoors) {}

    /// `arguments` with the program's name in front. The exit code of the process; what went wrong has been
    /// told on standard error. Yields.
    int Run(const QStringList &arguments);

private:
    Outcome RunProgram(const QStringList &arguments);
    Outcome Help(const QStringList &words);
    Outcome RunNamed(const QStringList &words, const QString &home);
    Outcome RunCommand(const Command &command, const QStringList &words, const QString &home);

    Console &console;
    const SystemDoors &doors;
};

} // namespace lanterra
