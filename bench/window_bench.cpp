// window_bench WHAT PROJECT: one figure of the window, with the real program behind it and a project of its
// own folder.
//
//   start        nothing is printed: the process ends when the main window with the project is painted first
//   gap          longest time in milliseconds that the event queue isn't served during a run
//   statistics   milliseconds from the press to the painted pane
//   select       milliseconds from "Select All" to the painted list
//   memory       KiB of resident memory that 100 runs take more than one

#include "app/window_program.h"
#include "bench/first_paint.h"
#include "database/walk_transaction.h"
#include "window/theme.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <optional>
#include <unistd.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

double Milliseconds(const QElapsedTimer &timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

/// The longest time between two turns of the event queue.
class LongestGap {
public:
    LongestGap() {
        QObject::connect(&timer, &QTimer::timeout, [this] { Turn(); });
        timer.setTimerType(Qt::PreciseTimer);
        since.start();
        timer.start(1);
    }

    /// The time since the last turn counts, too.
    double Value() {
        Turn();
        return longest;
    }

private:
    void Turn() {
        longest = std::max(longest, Milliseconds(since));
        since.restart();
    }

    QTimer timer;
    QElapsedTimer since;
    double longest = 0;
};

/// Chooses the automated sites in the menu that SUBMIT opens. `begin` is called when the menu is closed.
void Submit(
    Program &program, const std::function<void()> &begin = [] {}) {
    QTimer::singleShot(0, [&program, &begin] {
        program.run.mnuAuto_Click();
        QApplication::activePopupWidget()->close();
        begin();
    });
    program.run.cmdStart_Click();
}

double GapOfRun(Program &program) {
    program.frmMain.cmdSubmit_Click();
    QCoreApplication::processEvents();
    std::optional<LongestGap> gap;
    Submit(program, [&gap] { gap.emplace(); });
    return gap->Value();
}

/// Sees whether something was painted.
class PaintWatch : public QObject {
public:
    PaintWatch() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override {
        seen = seen || event->type() == QEvent::Paint;
        return false;
    }

    bool seen = false;
};

/// Until what the press has changed is painted.
template <class Press>
double TimeOf(Press press) {
    PaintWatch painting;
    QElapsedTimer timer;
    timer.start();
    press();
    painting.seen = false;
    while (!painting.seen)
        QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return Milliseconds(timer);
}

/// Brings the project to as many sessions as it gathers in years, each with the names of some sites.
void AddSessions(Program &program) {
    constexpr int sessions = 10000;
    const QString names = u"A site of usual name\r\n"_s.repeated(20);
    DataControl &rows = program.project.database.Data3;
    program.project.database.BindStats();
    WalkTransaction transaction(rows);
    while (rows.RowCount() < sessions) {
        rows.AddNew();
        for (const QString &field : SessionGrid::Fields())
            rows.SetText(field, u"100"_s);
        rows.SetText(u"Successful Submissions"_s, names);
        rows.Update();
    }
    transaction.Commit();
}

double OpenStatistics(Program &program) {
    AddSessions(program);
    return TimeOf([&program] { program.statistics.cmdOrder_Click(); });
}

double SelectAll(Program &program) {
    program.frmMain.cmdEngines_Click();
    QCoreApplication::processEvents();
    return TimeOf([&program] { program.siteSelection.Command4_Click(); });
}

double ResidentKib() {
    std::ifstream file("/proc/self/statm");
    long whole = 0;
    long resident = 0;
    file >> whole >> resident;
    return static_cast<double>(resident * sysconf(_SC_PAGESIZE)) / 1024;
}

double MemoryOfRuns(Program &program) {
    constexpr int more = 99;
    program.frmMain.cmdSubmit_Click();
    Submit(program);
    const double before = ResidentKib();
    for (int i = 0; i < more; ++i)
        Submit(program);
    return ResidentKib() - before;
}

const std::map<QString, double (*)(Program &)> figures{{u"gap"_s, GapOfRun},
                                                       {u"statistics"_s, OpenStatistics},
                                                       {u"select"_s, SelectAll},
                                                       {u"memory"_s, MemoryOfRuns}};

} // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    const QString what = QCoreApplication::arguments().value(1);
    const QString project = QCoreApplication::arguments().value(2);
    const Theme theme(application, ColourScheme::FollowDesktop);
    WindowProgram window(QFileInfo(project).absolutePath() + u'/');
    if (what == "start"_L1) {
        const FirstPaint end(application);
        window.Run(project);
    }
    const auto figure = figures.find(what);
    if (figure == figures.end() || !window.program.startUp.Run(project))
        return EXIT_FAILURE;
    QCoreApplication::processEvents();
    std::printf("%.1f\n", figure->second(window.program));
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS); // the end of the program has questions of its own
}
