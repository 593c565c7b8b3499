#pragma once

#include "tests/faults/faulted_program.h"

#include <QMap>

namespace lanterra {

/// One way in which a system call goes wrong.
struct Injection {
    QString systemCall;
    QString fault;        ///< in strace's words, "signal=KILL" or "error=ENOSPC"
    int nth = 1;          ///< the call that is hit, counted from the start of the operation
    bool onwards = false; ///< all later calls, too

    bool Kills() const { return fault.startsWith(QStringLiteral("signal")); }
};

/// What became of an operation that was carried out in a process of its own under an injection.
struct Observed {
    bool hit = false;
    bool killed = false;
    QString trouble = {}; ///< a crash, a hang, or why strace could not attach; empty if all went as it should
    QString told = {};    ///< to the person, by the operation
    QString toldAgain = {}; ///< by its second try
};

/// The files below a folder with their states, as a process sees them that starts now.
QMap<QString, QString> FreshLook(const QString &folder);

/// Carries out the operation on the folder and counts its system calls from the moment at which it starts. If
/// a call failed once and the person was told so, `inBetween` runs and the operation is tried again.
Observed PerformUnder(const Injection &injection, const Operation &operation, const QString &folder,
                      const std::function<void()> &inBetween);

/// Carries out the operation without a fault in a fresh process. Returns what the person was told, or that it
/// crashed.
QString PerformSoundly(const Operation &operation, const QString &folder);

/// How often the operation makes each of these calls.
QMap<QString, int> CountCalls(const QStringList &systemCalls, const Operation &operation,
                              const QString &folder);

} // namespace lanterra
