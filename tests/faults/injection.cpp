#include "tests/faults/injection.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryFile>
#include <atomic>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <new>
#include <optional>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// strace answers this call with this number once it holds the process: the mark from which calls are counted.
constexpr auto markerCall = "getppid"_L1;
constexpr long markerAnswer = 424242;

constexpr useconds_t pause = 100; ///< microseconds between two looks
constexpr std::chrono::seconds longestRun(30);
constexpr int unusualEnd = 70; ///< exit code after an exception

enum class Phase { Preparing, Ready, Performing, Paused, Resumed };

/// What parent and child tell each other without a system call that could be hit.
struct Shared {
    std::atomic<Phase> phase = Phase::Preparing;
    std::array<char16_t, 400> told{};
    std::array<char16_t, 400> toldAgain{};
};

/// Memory that a child has in common with its parent.
class SharedMemory {
public:
    SharedMemory()
        : place(mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)),
          shared(new (place) Shared) {}
    ~SharedMemory() { munmap(place, sizeof(Shared)); }
    Q_DISABLE_COPY_MOVE(SharedMemory)

    Shared *operator->() const { return shared; }

private:
    void *place;
    Shared *shared;
};

template <std::size_t size>
void Put(std::array<char16_t, size> &place, const QString &text) {
    const QString cut = text.left(size - 1);
    std::copy_n(cut.utf16(), cut.size() + 1, place.begin());
}

pid_t Fork(const std::function<void()> &body) {
    const pid_t child = fork();
    if (child != 0)
        return child;
    try {
        body();
    } catch (const std::exception &exception) {
        fputs(exception.what(), stderr);
        _exit(unusualEnd);
    }
    _exit(0);
}

/// The status of a child, nothing while it runs.
std::optional<int> Ended(pid_t child) {
    int status = 0;
    return waitpid(child, &status, WNOHANG) == child ? std::optional(status) : std::nullopt;
}

int WaitFor(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

void Perform(const Operation &operation, const QString &folder, bool tryAgain, const SharedMemory &shared) {
    FaultedProgram faulted(folder);
    operation.prepare(faulted);
    faulted.Told();
    prctl(PR_SET_PTRACER, PR_SET_PTRACER_ANY, 0, 0, 0);
    shared->phase = Phase::Ready;
    while (syscall(SYS_getppid) != markerAnswer)
        usleep(pause);
    shared->phase = Phase::Performing;
    operation.perform(faulted);
    const QString told = faulted.Told();
    Put(shared->told, told);
    if (told.isEmpty() || !tryAgain)
        return;
    shared->phase = Phase::Paused;
    while (shared->phase != Phase::Resumed)
        usleep(pause);
    operation.perform(faulted);
    Put(shared->toldAgain, faulted.Told());
}

pid_t Attach(pid_t child, const QStringList &traced, const QStringList &injected, const QString &log) {
    QStringList arguments{u"strace"_s, u"-qq"_s,
                          u"-o"_s,     log,
                          u"-p"_s,     QString::number(child),
                          u"-e"_s,     u"trace="_s + traced.join(u',') + u',' + markerCall,
                          u"-e"_s,     u"inject=%1:retval=%2"_s.arg(markerCall).arg(markerAnswer)};
    for (const QString &injection : injected)
        arguments << u"-e"_s << u"inject="_s + injection;
    std::vector<QByteArray> bytes;
    bytes.reserve(arguments.size());
    for (const QString &argument : arguments)
        bytes.push_back(argument.toLocal8Bit());
    std::vector<char *> pointers;
    pointers.reserve(bytes.size() + 1);
    for (QByteArray &argument : bytes)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    const pid_t tracer = fork();
    if (tracer == 0) {
        execvp("strace", pointers.data());
        perror("strace");
        _exit(unusualEnd);
    }
    return tracer;
}

/// Carries the operation out under strace, whose output is left in `log`.
Observed Trace(const Operation &operation, const QString &folder, const QStringList &traced,
               const QStringList &injected, const QString &log, const std::function<void()> &inBetween) {
    const SharedMemory shared;
    const QDeadlineTimer deadline(longestRun);
    const pid_t child = Fork([&] { Perform(operation, folder, inBetween != nullptr, shared); });
    std::optional<int> status;
    while (shared->phase == Phase::Preparing && !(status = Ended(child)))
        usleep(pause);
    if (status)
        return {.trouble = u"the preparation ended with status %1"_s.arg(*status)};
    const pid_t tracer = Attach(child, traced, injected, log);
    bool tracing = true;
    Observed outcome;
    while (!(status = Ended(child))) {
        if (shared->phase == Phase::Paused) {
            inBetween();
            shared->phase = Phase::Resumed;
        }
        tracing = tracing && !Ended(tracer);
        if (deadline.hasExpired() || (!tracing && shared->phase == Phase::Ready)) {
            kill(child, SIGKILL);
            outcome.trouble =
                tracing ? u"it hung"_s : u"strace could not attach; this needs the right to trace"_s;
        }
        usleep(pause);
    }
    if (tracing)
        WaitFor(tracer);
    outcome.killed = WIFSIGNALED(*status) && WTERMSIG(*status) == SIGKILL;
    outcome.told = QString::fromUtf16(shared->told.data());
    outcome.toldAgain = QString::fromUtf16(shared->toldAgain.data());
    if (outcome.trouble.isEmpty() && *status != 0 && !outcome.killed)
        outcome.trouble = u"it ended with status %1"_s.arg(*status);
    return outcome;
}

QList<QByteArray> LinesOf(QFile &log) { return log.readAll().split('\n'); }

QMap<QString, QString> Look(const QString &folder) {
    QMap<QString, QString> states;
    QStringList names;
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (files.hasNext())
        names << QDir(folder).relativeFilePath(files.next());
    names.sort(); // a project comes before its journal, which the look at it plays back
    for (const QString &name : names) {
        if (QFile::exists(QDir(folder).filePath(name)))
            states[name] = StateOf(QDir(folder).filePath(name));
    }
    return states;
}

} // namespace

QMap<QString, QString> FreshLook(const QString &folder) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        return {};
    const pid_t child = Fork([&] {
        QFile out;
        out.open(ends[1], QIODevice::WriteOnly);
        QDataStream stream(&out);
        stream << Look(folder);
    });
    close(ends[1]);
    QFile in;
    QMap<QString, QString> states;
    if (in.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        QDataStream stream(in.readAll());
        stream >> states;
    }
    if (const int status = WaitFor(child); status != 0)
        states[u"the fresh process"_s] = u"ended with status %1"_s.arg(status);
    return states;
}

Observed PerformUnder(const Injection &injection, const Operation &operation, const QString &folder,
                      const std::function<void()> &inBetween) {
    QTemporaryFile log;
    log.open();
    const QString when = QString::number(injection.nth) + (injection.onwards ? u"+"_s : QString());
    const QString injected = injection.systemCall + u':' + injection.fault + u":when="_s + when;
    Observed outcome =
        Trace(operation, folder, {injection.systemCall}, {injected}, log.fileName(), inBetween);
    const QByteArray call = injection.systemCall.toLatin1() + '(';
    for (const QByteArray &line : LinesOf(log))
        outcome.hit = outcome.hit || (line.startsWith(call) && line.endsWith("(INJECTED)"));
    outcome.hit = outcome.hit || (injection.Kills() && outcome.killed);
    return outcome;
}

QString PerformSoundly(const Operation &operation, const QString &folder) {
    const SharedMemory shared;
    const pid_t child = Fork([&] {
        FaultedProgram faulted(folder);
        operation.prepare(faulted);
        QString told = faulted.Told();
        operation.perform(faulted);
        Put(shared->told, told + faulted.Told());
    });
    const int status = WaitFor(child);
    return status == 0 ? QString::fromUtf16(shared->told.data()) : u"it ended with status %1"_s.arg(status);
}

QMap<QString, int> CountCalls(const QStringList &systemCalls, const Operation &operation,
                              const QString &folder) {
    QTemporaryFile log;
    log.open();
    const Observed outcome = Trace(operation, folder, systemCalls, {}, log.fileName(), nullptr);
    if (!outcome.trouble.isEmpty())
        qFatal("%s: %s", qPrintable(operation.name), qPrintable(outcome.trouble));
    QMap<QString, int> counts;
    for (const QByteArray &line : LinesOf(log))
        counts[QString::fromLatin1(line.left(line.indexOf('(')))]++;
    counts.removeIf([&](const auto &entry) { return !systemCalls.contains(entry.key()); });
    return counts;
}

} // namespace lanterra
