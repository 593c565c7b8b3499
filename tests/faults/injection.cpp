#include "tests/faults/injection.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryFile>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// Does nothing: it marks in strace's log where the operation starts.
constexpr auto marker = "getppid"_L1;
constexpr int longestRun = 30'000; // milliseconds

// Exit codes of the process that is observed.
constexpr int nothingTold = 0;
constexpr int failureTold = 10;
constexpr int secondFailureTold = 11;

QStringList TraceArguments(const QStringList &calls, const Injection *injection, const QString &log) {
    QStringList arguments{u"-q"_s, u"-o"_s, log, u"-e"_s, u"trace=%1,%2"_s.arg(calls.join(u','), marker)};
    if (injection)
        arguments << u"-e"_s
                  << u"inject=%1:%2:when=%3%4"_s.arg(injection->systemCall, injection->fault)
                         .arg(injection->nth)
                         .arg(injection->onwards ? u"+"_s : QString());
    return arguments;
}

/// Runs a program in front of this one, which performs the operation. Returns its exit code; -1 for a signal,
/// -2 for a hang or if there is no such program.
int RunPerform(QStringList command, const Operation &operation, const QString &folder, bool tryAgain) {
    command << QCoreApplication::applicationFilePath() << u"perform"_s << operation.name << folder;
    if (tryAgain)
        command << u"again"_s;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(command.takeFirst(), command);
    if (!process.waitForFinished(longestRun)) {
        process.kill();
        process.waitForFinished();
        return -2;
    }
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

} // namespace

QString FolderBetween(const QString &folder) { return folder + u".between"_s; }

int PerformHere(const Operation &operation, const QString &folder, bool tryAgain) {
    FaultedProgram faulted(folder);
    operation.prepare(faulted);
    faulted.Told();
    syscall(SYS_getppid);
    operation.perform(faulted);
    if (faulted.Told().isEmpty())
        return nothingTold;
    if (!tryAgain)
        return failureTold;
    QProcess::execute(u"cp"_s, {u"-r"_s, folder, FolderBetween(folder)});
    operation.perform(faulted);
    return faulted.Told().isEmpty() ? failureTold : secondFailureTold;
}

Observed Perform(const Operation &operation, const QString &folder, const Injection *injection) {
    QTemporaryFile log;
    log.open();
    QStringList command;
    if (injection)
        command << u"strace"_s << TraceArguments({injection->systemCall}, injection, log.fileName());
    const int code = RunPerform(command, operation, folder, injection && injection->AllowsSecondTry());
    const QByteArray calls = log.readAll();
    Observed observed;
    observed.killed = calls.contains("+++ killed by SIGKILL +++");
    observed.hit = observed.killed || calls.contains("(INJECTED)");
    observed.told = code == failureTold || code == secondFailureTold;
    observed.toldAgain = code == secondFailureTold;
    const qsizetype start = calls.indexOf(marker);
    if (injection && (start < 0 || calls.first(start).contains("(INJECTED)")))
        observed.trouble = u"the operation was not reached"_s;
    else if (code != nothingTold && !observed.told && !observed.killed)
        observed.trouble = code == -2 ? u"it hung"_s : u"it ended with %1"_s.arg(code);
    return observed;
}

QMap<QString, CallCount> CountCalls(const QStringList &systemCalls, const Operation &operation,
                                    const QString &folder) {
    QTemporaryFile log;
    log.open();
    const QStringList command =
        QStringList{u"strace"_s} + TraceArguments(systemCalls, nullptr, log.fileName());
    if (RunPerform(command, operation, folder, false) != nothingTold)
        qFatal("%s fails without a fault.", qPrintable(operation.name));
    QMap<QString, CallCount> counts;
    bool during = false;
    while (!log.atEnd()) {
        const QString call = QString::fromLatin1(log.readLine()).section(u'(', 0, 0);
        during = during || call == marker;
        if (systemCalls.contains(call))
            ++(during ? counts[call].during : counts[call].before);
    }
    counts.removeIf([](const auto &entry) { return entry.value().during == 0; });
    return counts;
}

QMap<QString, QString> Look(const QString &folder) {
    QStringList names;
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (files.hasNext())
        names << QDir(folder).relativeFilePath(files.next());
    names.sort(); // a project comes before its journal, which the look at it plays back
    QMap<QString, QString> states;
    for (const QString &name : names) {
        if (QFile::exists(QDir(folder).filePath(name)))
            states[name] = StateOf(QDir(folder).filePath(name));
    }
    return states;
}

} // namespace lanterra
