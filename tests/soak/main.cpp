#include "park/park_server.h"
#include "platform/qt_event_queue.h"
#include "platform/socket_http_client.h"
#include "platform/system_clock.h"
#include "project/site_source_build.h"
#include "tests/example_project.h"
#include "tests/fakes/fake_doors.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QUrl>
#include <cstdio>
#include <malloc.h>
#ifdef __SANITIZE_ADDRESS__
// mallinfo2 knows nothing of the sanitizer's own heap. GCC brings this function without its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // NOLINT(bugprone-reserved-identifier)
#endif

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

const QString data = QStringLiteral(LANTERRA_DATA_DIR "/");

// Caches and logs of the practice web fill up during the first runs.
constexpr int leastWarmUp = 10;
// A leak in an exchange comes more than a hundred times a run, and so stands far above this.
constexpr long allowedGrowth = 64L * 1024;

/// A whole program with real clients that submits the example project to a practice web in the same process:
/// to all of its sites but those that answer late or never.
class SoakedProgram {
public:
    /// False if the practice web, the database or the project could not be made.
    bool Start() {
        if (!server.Start(0) || !BuildMaster())
            return false;
        program = std::make_unique<Program>(
            doors.With(queue, clock, doors.settings, [] { return std::make_unique<SocketHttpClient>(); }),
            home.path());
        program->frmSettings.Load();
        doors.forms.onMenu[PopupMenu::Submit] = [this] { program->run.mnuAuto_Click(); };
        if (!program->startProject.CreateProject(u"Soak"_s))
            return false;
        program->files.LoadProject();
        FillInExample(program->project.record, data + u"example_project.txt"_s);
        program->project.lists.List1.SetAllSelected(true);
        return program->categorySelection.SelectByKeyword(QString());
    }

    /// One run, and the statistics cleared behind it, since those grow by design. Returns how it went: "116
    /// successful, 12 failed" and what else a person must know; the same words each time if all is well.
    QString Run() {
        program->run.cmdStart_Click();
        const RunResult &result = program->result;
        QStringList words{u"%1 successful"_s.arg(result.SuccessfulCount()),
                          u"%1 failed"_s.arg(result.FailedCount())};
        words += result.notStored;
        if (result.SuccessfulCount() + result.FailedCount() != program->project.lists.List1.SelCount())
            words += u"sites without a verdict"_s;
        if (const QString told = doors.dialogs.Told(); !told.isEmpty())
            words += told;
        doors.dialogs.answers.push_back(BoxAnswer::Yes);
        program->statistics.Command10_Click();
        doors.dialogs.boxes.clear();
        return words.join(u", "_s);
    }

private:
    bool BuildMaster() const {
        QFile file(u":/park/site_habits.json"_s);
        if (!file.open(QIODevice::ReadOnly))
            return false;
        const QJsonObject habits = QJsonDocument::fromJson(file.readAll()).object();
        SiteSource source = ReadSiteSource(data + u"sites.json"_s).source;
        source.sites.removeIf([&habits](const SiteEntry &site) {
            const QJsonObject own = habits[QUrl(site.action).path().section(u'/', 1, 1)].toObject();
            return own.contains("delay"_L1) || own["behaviour"_L1].toString() == "silence"_L1;
        });
        for (SiteEntry &site : source.sites)
            site.action = server.Origin() + QUrl(site.action).path();
        return BuildSiteDatabase(source, home.filePath(u"ng.dll"_s));
    }

    QTemporaryDir home;
    AccessLog log{QString()};
    ParkServer server{0, log};
    QtEventQueue queue;
    SystemClock clock;
    FakeDoors doors; ///< all but queue, clock and clients
    std::unique_ptr<Program> program;
};

/// What this process holds of the system.
struct ProcessUse {
    long allocatedBytes = 0; ///< by malloc and new, in use
    qsizetype openDescriptors = 0;

    static ProcessUse Now() {
#ifdef __SANITIZE_ADDRESS__
        const std::size_t bytes = __sanitizer_get_current_allocated_bytes();
#else
        const std::size_t bytes = mallinfo2().uordblks;
#endif
        return {static_cast<long>(bytes),
                QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System).size()};
    }
};

int Fail(const QString &reason) {
    std::fprintf(stderr, "%s\n", qPrintable(reason));
    return 1;
}

} // namespace

/// test_soak [RUNS]: makes so many runs in one process and fails if they differ, if descriptors stay open, or
/// if memory grows.
int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const int runs = std::max(argc > 1 ? std::atoi(argv[1]) : 0, 2 * leastWarmUp);
    SoakedProgram program;
    if (!program.Start())
        return Fail(u"The program or its practice web could not be started"_s);
    ProcessUse warm;
    QString usual;
    QElapsedTimer time;
    time.start();
    for (int run = 1; run <= runs; ++run) {
        const QString outcome = program.Run();
        if (run == 1)
            usual = outcome;
        if (outcome != usual)
            return Fail(u"Run %1: %2; before: %3"_s.arg(QString::number(run), outcome, usual));
        if (run == leastWarmUp)
            warm = ProcessUse::Now();
    }
    const ProcessUse end = ProcessUse::Now();
    std::printf("%d runs, each %s, in %lld ms\nrun %d: %ld bytes, %lld descriptors\nrun %d: %ld bytes, "
                "%lld descriptors\n",
                runs, qPrintable(usual), static_cast<long long>(time.elapsed()), leastWarmUp,
                warm.allocatedBytes, static_cast<long long>(warm.openDescriptors), runs, end.allocatedBytes,
                static_cast<long long>(end.openDescriptors));
    if (end.openDescriptors != warm.openDescriptors)
        return Fail(u"Descriptors stay open"_s);
    if (end.allocatedBytes > warm.allocatedBytes + allowedGrowth)
        return Fail(u"Memory grows"_s);
    return 0;
}
