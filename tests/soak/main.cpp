#include "tests/soak/process_use.h"
#include "tests/soak/soaked_program.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>

using namespace lanterra;

namespace {

// Caches and logs of the practice web fill up during the first runs.
constexpr int leastWarmUp = 10;
// A leak in an exchange comes more than a hundred times a run, and so stands far above this.
constexpr long allowedGrowth = 64L * 1024;

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
        return Fail(QStringLiteral("The program or its practice web could not be started"));
    ProcessUse warm;
    QString usual;
    QElapsedTimer time;
    time.start();
    for (int run = 1; run <= runs; ++run) {
        const QString outcome = program.Run();
        if (run == 1)
            usual = outcome;
        if (outcome != usual)
            return Fail(QStringLiteral("Run %1: %2; before: %3").arg(QString::number(run), outcome, usual));
        if (run == leastWarmUp)
            warm = ProcessUse::Now();
    }
    const ProcessUse end = ProcessUse::Now();
    std::printf("%d runs, each %s, in %lld ms; run %d: %ld bytes, %d descriptors; run %d: %ld bytes, %d "
                "descriptors\n",
                runs, qPrintable(usual), static_cast<long long>(time.elapsed()), leastWarmUp,
                warm.allocatedBytes, warm.openDescriptors, runs, end.allocatedBytes, end.openDescriptors);
    if (end.openDescriptors != warm.openDescriptors)
        return Fail(QStringLiteral("Descriptors stay open"));
    if (end.allocatedBytes > warm.allocatedBytes + allowedGrowth)
        return Fail(QStringLiteral("Memory grows"));
    return 0;
}
