#pragma once

#include "tests/faults/faulted_program.h"

#include <QMap>

namespace lanterra {

/// One way in which a system call goes wrong.
struct Injection {
    QString systemCall;
    QString fault;        ///< in strace's words, "signal=KILL" or "error=ENOSPC"
    int nth = 1;          ///< the call that is hit, counted from the start of the process
    bool onwards = false; ///< all later calls, too

    bool Kills() const { return fault.startsWith(QStringLiteral("signal")); }
    /// Whether the operation is tried a second time once the person was told that it failed.
    bool AllowsSecondTry() const { return !Kills() && !onwards; }
};

/// What became of an operation in a process of its own.
struct Observed {
    bool hit = false;
    bool killed = false;
    bool told = false;      ///< that it failed
    bool toldAgain = false; ///< that the second try failed, too
    QString trouble; ///< a crash, a hang, or why nothing could be tested; empty if all went as it should
};

/// The folder as it was between a failure and the second try; missing without one.
QString FolderBetween(const QString &folder);

/// The process that is observed: carries the operation out and gives the exit code that Observed is made of.
int PerformHere(const Operation &operation, const QString &folder, bool tryAgain);

/// Carries the operation out on the folder, under the injection if there is one.
Observed Perform(const Operation &operation, const QString &folder, const Injection *injection = nullptr);

/// How often a system call is made: before the operation, and by it.
struct CallCount {
    int before = 0;
    int during = 0;
};

/// The counts of those of these calls that the operation makes.
QMap<QString, CallCount> CountCalls(const QStringList &systemCalls, const Operation &operation,
                                    const QString &folder);

/// The files below a folder with their states.
QMap<QString, QString> Look(const QString &folder);

} // namespace lanterra
