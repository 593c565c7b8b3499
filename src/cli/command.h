#pragma once

#include "cli/console.h"
#include "cli/outcome.h"
#include "ports/clock.h"
#include "ports/dialogs.h"
#include "ports/event_queue.h"
#include "ports/settings_store.h"
#include "submission/channel_bank.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <limits>
#include <optional>

namespace lanterra {

/// The doors that stand outside of the command line. All must outlive it.
struct SystemDoors {
    EventQueue &queue;
    const Clock &clock;
    SettingsStore &settings;
    ChannelBank::ClientFactory makeClient;
};

/// One command as it was typed, and what it works with.
struct CommandCall {
    const QCommandLineParser &options; ///< parsed without a mistake
    QStringList arguments;             ///< behind the command, as many as it takes
    std::optional<BoxAnswer> answer;   ///< to questions, from --yes and --no
    QString home;                      ///< the program's folder as given, empty for the usual one
    Console &console;
    const SystemDoors &doors;
};

/// One command of the program. Its help, beside what stands here, is the text help/NAME.txt.
struct Command {
    QString name;
    QString usage;   ///< what is typed behind the name
    QString summary; ///< one line for the list of commands
    QList<QCommandLineOption> options;
    qsizetype leastArguments = 1;
    qsizetype mostArguments = std::numeric_limits<qsizetype>::max();
    Outcome (*run)(const CommandCall &call) = nullptr;
};

} // namespace lanterra
