// lanterra-faults OPERATION MODE: makes the first, second, third ... system call of an operation go wrong,
// until it ends without a hit, and looks at what is left. Prints the number of calls that were hit. The
// operation runs in a process of its own each time: lanterra-faults perform OPERATION FOLDER [again].

#include "tests/faults/injection.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

// What writes, syncs, renames, opens or removes.
const QStringList systemCalls =
    u"openat write pwrite64 writev fsync fdatasync ftruncate rename renameat renameat2 link linkat unlink "
    "unlinkat mkdir fallocate"_s.split(u' ');

struct Mode {
    QString name;
    QString fault;
    bool onwards;
};

const QList<Mode> modes{{u"kill"_s, u"signal=KILL"_s, false},
                        {u"once-full"_s, u"error=ENOSPC"_s, false},
                        {u"once-io"_s, u"error=EIO"_s, false},
                        {u"on-full"_s, u"error=ENOSPC"_s, true},
                        {u"on-io"_s, u"error=EIO"_s, true}};

using States = QMap<QString, QString>;

/// Hits the calls of one operation in one mode, one after the other.
class Hunt {
public:
    Hunt(const Operation &theOperation, const Mode &theMode) : operation(theOperation), mode(theMode) {
        // In the very folder, since the settings hold its path.
        if (!MakePristineFolder(work))
            qFatal("The files to begin with could not be made.");
        Copy(work, pristine);
        before = Look(work);
        counts = CountCalls(systemCalls, operation, work);
        after = Look(work);
        if (before == after)
            qFatal("%s changes nothing.", qPrintable(operation.name));
    }

    int Run() {
        for (const QString &call : counts.keys()) {
            int nth = 1;
            while (Step({call, mode.fault, counts[call].before + nth, mode.onwards}))
                ++nth;
            steps += nth - 1;
        }
        return steps;
    }

    int Faults() const { return faults; }

private:
    static void Copy(const QString &from, const QString &to) {
        QDir(to).removeRecursively();
        for (const QString &folder : {u"/Projects"_s, u"/config"_s})
            QDir().mkpath(to + folder);
        for (const QString &name : {u"/ng.dll"_s, u"/Projects/Site.rts"_s, u"/Projects/Site.rts.bak"_s,
                                    u"/Projects/Other.rts"_s, u"/config/Lanterra.ini"_s})
            QFile::copy(from + name, to + name);
    }

    // Whether the call was hit.
    bool Step(const Injection &injection) {
        const QString between = FolderBetween(work);
        QDir(between).removeRecursively();
        Copy(pristine, work);
        where = u"%1 %2 %3"_s.arg(mode.name, injection.systemCall)
                    .arg(injection.nth - counts[injection.systemCall].before);
        const Observed seen = Perform(operation, work, &injection);
        if (!seen.trouble.isEmpty())
            Fault(seen.trouble);
        if (seen.toldAgain)
            Fault(u"the second try fails"_s);
        if (QDir(between).exists())
            CheckStates(Look(between));
        const States states = Look(work);
        CheckStates(states);
        if (!seen.killed && (!seen.told || injection.AllowsSecondTry()) && !IsNew(states))
            Fault(u"the person was told nothing, and nothing is stored"_s);
        CheckLeftovers(injection, states);
        if (!injection.AllowsSecondTry())
            CheckLaterRun(states);
        return seen.hit;
    }

    bool IsNew(const States &states) const {
        return operation.mainFile.isEmpty() ||
               states.value(operation.mainFile) == after.value(operation.mainFile);
    }

    void CheckStates(const States &states) {
        const QString missing = u"no file"_s;
        for (const QString &name : before.keys() + after.keys()) {
            const QString state = states.value(name, missing);
            // The backup follows the project also when its last edits could not be saved.
            const bool isOldProject = name.endsWith(".bak"_L1) && state == before.value(name.chopped(4));
            if (state != before.value(name, missing) && state != after.value(name, missing) && !isOldProject)
                Fault(name + u" is neither old nor new: "_s + state.left(300));
        }
    }

    // Who was killed, or may not remove, leaves something beside; nobody else does.
    void CheckLeftovers(const Injection &injection, const States &states) {
        if (injection.Kills() || injection.systemCall.startsWith("unlink"_L1))
            return;
        for (const QString &name : states.keys()) {
            if (!before.contains(name) && !after.contains(name))
                Fault(name + u" is left"_s);
        }
    }

    // What is left must not stand in the way the next time.
    void CheckLaterRun(const States &states) {
        if (const Observed later = Perform(operation, work); later.told || !later.trouble.isEmpty())
            Fault(u"a later run fails. "_s + later.trouble);
        const bool wasOld = states.value(operation.mainFile) == before.value(operation.mainFile);
        if (wasOld && !IsNew(Look(work)))
            Fault(u"a later run stores nothing"_s);
    }

    void Fault(const QString &what) {
        ++faults;
        QTextStream(stderr) << operation.name << ' ' << where << ": " << what << '\n';
    }

    const Operation &operation;
    const Mode &mode;
    QTemporaryDir place;
    const QString work = place.filePath(u"work"_s);
    const QString pristine = place.filePath(u"pristine"_s);
    States before;
    States after;
    QMap<QString, CallCount> counts;
    QString where; ///< the call that is hit
    int steps = 0;
    int faults = 0;
};

template <class List>
const auto &Named(const List &list, const QString &name) {
    const auto found =
        std::find_if(list.begin(), list.end(), [&](const auto &each) { return each.name == name; });
    if (found == list.end())
        qFatal("usage: lanterra-faults OPERATION MODE");
    return *found;
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    // Without the search for leaks at the end, which a traced process can't make.
    if (arguments.value(1) == u"perform")
        std::_Exit(
            PerformHere(Named(Operations(), arguments.value(2)), arguments.value(3), arguments.size() > 4));
    Hunt hunt(Named(Operations(), arguments.value(1)), Named(modes, arguments.value(2)));
    const int steps = hunt.Run();
    QTextStream(stdout) << arguments.value(1) << ' ' << arguments.value(2) << ' ' << steps << ' '
                        << hunt.Faults() << '\n';
    return hunt.Faults() == 0 ? 0 : 1;
}
