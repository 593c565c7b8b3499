// measure RUNS COMMAND [ARGUMENT ...]
//
// Runs a command RUNS times, its output thrown away, and prints the medians of its wall time and processor
// time in milliseconds and of its peak memory in KiB, as the operating system accounts for each finished run.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct Run {
    double wallMs;
    double cpuMs;
    double peakKib;
};

double Milliseconds(const timeval &time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

Run RunOnce(char **command) {
    const auto begin = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        const int nowhere = open("/dev/null", O_RDWR);
        dup2(nowhere, STDIN_FILENO);
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
        execvp(command[0], command);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - begin;
    if (WIFEXITED(status) && WEXITSTATUS(status) == 127) {
        std::fprintf(stderr, "measure: %s can't be run\n", command[0]);
        std::exit(1);
    }
    return {wall.count(), Milliseconds(usage.ru_utime) + Milliseconds(usage.ru_stime),
            static_cast<double>(usage.ru_maxrss)};
}

double Median(const std::vector<Run> &runs, double Run::*figure) {
    std::vector<double> values;
    for (const Run &run : runs)
        values.push_back(run.*figure);
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char **argv) {
    const int count = argc > 2 ? std::atoi(argv[1]) : 0;
    if (count < 1) {
        std::fprintf(stderr, "usage: measure RUNS COMMAND [ARGUMENT ...]\n");
        return 2;
    }
    std::vector<Run> runs;
    for (int i = 0; i < count; ++i)
        runs.push_back(RunOnce(argv + 2));
    std::printf("%.1f %.1f %.0f\n", Median(runs, &Run::wallMs), Median(runs, &Run::cpuMs),
                Median(runs, &Run::peakKib));
    return 0;
}
