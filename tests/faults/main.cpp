// lanterra-faults OPERATION MODE: makes the first, second, third ... system call of an operation go wrong,
// until it ends without a hit, and looks at what is left from a fresh process. Prints the number of calls
// that were hit.

#include "tests/faults/injection.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

// What writes, syncs, renames, opens or removes.
const QStringList systemCalls{u"openat"_s,   u"write"_s,     u"pwrite64"_s,  u"writev"_s,
                              u"fsync"_s,    u"fdatasync"_s, u"ftruncate"_s, u"rename"_s,
                              u"renameat"_s, u"renameat2"_s, u"link"_s,      u"linkat"_s,
                              u"unlink"_s,   u"unlinkat"_s,  u"mkdir"_s,     u"fallocate"_s};

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
        if (!MakePristineFolder(work.path()))
            qFatal("The files to begin with could not be made.");
        CopyFiles(work, pristine);
        before = FreshLook(work.path());
        if (const QString told = PerformSoundly(operation, work.path()); !told.isEmpty())
            qFatal("%s fails without a fault: %s", qPrintable(operation.name), qPrintable(told));
        after = FreshLook(work.path());
        if (before == after)
            qFatal("%s changes nothing.", qPrintable(operation.name));
    }

    int Run() {
        Restore();
        const QMap<QString, int> counts = CountCalls(systemCalls, operation, work.path());
        for (const QString &call : counts.keys()) {
            int nth = 1;
            while (Step({call, mode.fault, nth, mode.onwards}))
                ++nth;
            steps += nth - 1;
        }
        return steps;
    }

    int Faults() const { return faults; }

private:
    static void CopyFiles(const QTemporaryDir &from, const QTemporaryDir &to) {
        QDir(to.path()).removeRecursively();
        for (const QString &folder : {u"Projects"_s, u"config"_s})
            QDir().mkpath(to.filePath(folder));
        for (const QString &name : {u"ng.dll"_s, u"Projects/Site.rts"_s, u"Projects/Site.rts.bak"_s,
                                    u"Projects/Other.rts"_s, u"config/Lanterra.ini"_s})
            QFile::copy(from.filePath(name), to.filePath(name));
    }

    void Restore() { CopyFiles(pristine, work); }

    // Whether the call was hit.
    bool Step(const Injection &injection) {
        Restore();
        const QString where = u"%1 %2 %3"_s.arg(mode.name, injection.systemCall).arg(injection.nth);
        const bool tryAgain = !injection.Kills() && !injection.onwards;
        std::optional<States> between;
        std::function<void()> look;
        if (tryAgain)
            look = [&] { between = FreshLook(work.path()); };
        const Observed outcome = PerformUnder(injection, operation, work.path(), look);
        if (!outcome.trouble.isEmpty())
            Fault(where, outcome.trouble);
        if (between)
            CheckStates(where + u" before the second try"_s, *between);
        if (!outcome.toldAgain.isEmpty())
            Fault(where, u"the second try fails: "_s + outcome.toldAgain);
        const States states = FreshLook(work.path());
        CheckStates(where, states);
        if (!outcome.killed && (outcome.told.isEmpty() || between) && !IsNew(states))
            Fault(where, u"the person was told nothing, and nothing is stored"_s);
        CheckLeftovers(where, injection, states);
        if (!tryAgain)
            CheckLaterRun(where, states);
        return outcome.hit;
    }

    bool IsNew(const States &states) const {
        return operation.mainFile.isEmpty() ||
               states.value(operation.mainFile) == after.value(operation.mainFile);
    }

    QStringList Names() const {
        QStringList names = before.keys() + after.keys();
        names.removeDuplicates();
        return names;
    }

    void CheckStates(const QString &where, const States &states) {
        for (const QString &name : Names()) {
            const QString missing = u"no file"_s;
            const QString state = states.value(name, missing);
            // The backup follows the project also when its last edits could not be saved.
            const bool isOldProject = name.endsWith(".bak"_L1) && state == before.value(name.chopped(4));
            if (state != before.value(name, missing) && state != after.value(name, missing) && !isOldProject)
                Fault(where, name + u" is neither old nor new: "_s + state.left(300));
        }
    }

    // Who was killed, or may not remove, leaves something beside; nobody else does.
    void CheckLeftovers(const QString &where, const Injection &injection, const States &states) {
        if (injection.Kills() || injection.systemCall.startsWith("unlink"_L1))
            return;
        for (const QString &name : states.keys()) {
            if (!Names().contains(name))
                Fault(where, name + u" is left"_s);
        }
    }

    // What is left must not stand in the way the next time.
    void CheckLaterRun(const QString &where, const States &states) {
        if (const QString told = PerformSoundly(operation, work.path()); !told.isEmpty())
            Fault(where, u"a later run fails: "_s + told);
        const States later = FreshLook(work.path());
        const bool wasOld = states.value(operation.mainFile) == before.value(operation.mainFile);
        if (wasOld && !IsNew(later))
            Fault(where, u"a later run stores nothing"_s);
    }

    void Fault(const QString &where, const QString &what) {
        ++faults;
        QTextStream(stderr) << operation.name << ' ' << where << ": " << what << '\n';
    }

    const Operation &operation;
    const Mode &mode;
    QTemporaryDir pristine;
    QTemporaryDir work;
    States before;
    States after;
    int steps = 0;
    int faults = 0;
};

template <class List>
const auto *Find(const List &list, const QString &name) {
    const auto found =
        std::find_if(list.begin(), list.end(), [&](const auto &each) { return each.name == name; });
    return found == list.end() ? nullptr : &*found;
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const Operation *operation = Find(Operations(), arguments.value(1));
    const Mode *mode = Find(modes, arguments.value(2));
    if (!operation || !mode)
        qFatal("usage: lanterra-faults OPERATION MODE");
    Hunt hunt(*operation, *mode);
    const int steps = hunt.Run();
    QTextStream(stdout) << operation->name << ' ' << mode->name << ' ' << steps << ' ' << hunt.Faults()
                        << '\n';
    return hunt.Faults() == 0 ? 0 : 1;
}
