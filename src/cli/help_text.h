#pragma once

#include "cli/command.h"

namespace lanterra {

/// What the program does, its commands with a line each, and its own options.
QString GeneralHelp();

/// How one command is used: its usage, what it does, its options.
QString CommandHelp(const Command &command);

/// The options that every command takes.
QList<QCommandLineOption> CommonOptions();

/// The options before the command.
QList<QCommandLineOption> ProgramOptions();

} // namespace lanterra
