// Launch benchmark: wall and processor time from starting a process to its first frame on screen.
//
//   first    larkwells --data-dir <fresh empty folder>   (the seeded book put in place, the cover drawn)
//   second   the same command on the folder that first launch left behind
//   minimal  a minimal Qt Quick Controls window (the floor)
//
// With LARKWELLS_QUIT_AFTER_FIRST_FRAME set, each program prints "first frame: <ms> ms cpu" (its
// processor time so far, every thread) at its first frame and then quits; the wall time is taken
// when that line arrives, so what a quit costs (closing the store, writing preferences) is not
// counted as launching. Runs are interleaved round by round, so a busy machine slows all three
// alike; medians and ratios are printed, of the wall time and of the processor time, which a
// machine shared with other work disturbs less. Also the peak resident memory of each (the
// kernel's high-water mark of the whole process) and, for reference, the wall time to its exit.
// Aims: first <= 1.10 x second, second <= 1.4 x minimal, memory of the second <= 1.2 x minimal.
// Nothing is asserted.
//
//   larkwells_launch_bench [--runs N] [--screen-runs N] [--verbose] [--app PATH] [--minimal PATH]
#include "BenchTable.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char **environ;

namespace {
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

struct Options {
    int runs = 15;
    int screenRuns = 3;
    bool verbose = false;
    std::string app = LARKWELLS_APP_PATH;
    std::string minimal = LARKWELLS_MINIMAL_PATH;
};

struct Timing {
    double wall = -1; // milliseconds to the first frame (to the exit without one); < 0 when the run failed
    double cpu = -1;
    double rss = -1; // megabytes
    double exitWall = -1;
};

// The processor time in a "first frame: <ms> ms cpu" line of `output`, or -1 without one.
double firstFrameCpu(const std::string &output)
{
    const std::string mark = "first frame: ";
    const size_t at = output.find(mark);
    return at == std::string::npos || output.find('\n', at) == std::string::npos
               ? -1
               : std::strtod(output.c_str() + at + mark.size(), nullptr);
}

// Starts the command with its standard output read here (its errors discarded) and waits for it.
Timing timedRun(const std::vector<std::string> &command)
{
    std::vector<char *> argv;
    for (const std::string &argument : command)
        argv.push_back(const_cast<char *>(argument.c_str()));
    argv.push_back(nullptr);

    int out[2];
    if (pipe(out) != 0)
        return {};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, out[0]);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);

    const auto start = Clock::now();
    const auto since = [&start] { return std::chrono::duration<double, std::milli>(Clock::now() - start).count(); };
    pid_t pid = 0;
    const int spawned = posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(out[1]);
    if (spawned != 0) {
        close(out[0]);
        std::fprintf(stderr, "cannot start %s: %s\n", argv[0], std::strerror(spawned));
        return {};
    }
    Timing timing;
    std::string output;
    char buffer[4096];
    for (ssize_t n; (n = read(out[0], buffer, sizeof buffer)) != 0;) {
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            break;
        output.append(buffer, size_t(n));
        if (timing.cpu < 0 && (timing.cpu = firstFrameCpu(output)) >= 0)
            timing.wall = since();
    }
    close(out[0]);
    int status = 0;
    rusage usage = {};
    while (wait4(pid, &status, 0, &usage) < 0 && errno == EINTR) {
    }
    timing.exitWall = since();
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s ended abnormally (status %d)\n", argv[0], status);
        return {};
    }
    const auto ms = [](const timeval &t) { return double(t.tv_sec) * 1e3 + double(t.tv_usec) / 1e3; };
    if (timing.cpu < 0) {
        timing.wall = timing.exitWall;
        timing.cpu = ms(usage.ru_utime) + ms(usage.ru_stime);
    }
    timing.rss = double(usage.ru_maxrss) / 1024.0;
    return timing;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

Options parse(int argc, char **argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--runs" && i + 1 < argc) {
            options.runs = std::max(1, std::atoi(argv[++i]));
        } else if (argument == "--screen-runs" && i + 1 < argc) {
            options.screenRuns = std::max(1, std::atoi(argv[++i]));
        } else if (argument == "--verbose") {
            options.verbose = true;
        } else if (argument == "--app" && i + 1 < argc) {
            options.app = argv[++i];
        } else if (argument == "--minimal" && i + 1 < argc) {
            options.minimal = argv[++i];
        } else {
            std::fprintf(stderr, "usage: %s [--runs N] [--screen-runs N] [--verbose] [--app PATH] [--minimal PATH]\n", argv[0]);
            std::exit(2);
        }
    }
    return options;
}
}

int main(int argc, char **argv)
{
    const Options options = parse(argc, argv);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("LARKWELLS_QUIT_AFTER_FIRST_FRAME", "1", 1);
    setenv("QT_QPA_UPDATE_IDLE_TIME", "0", 0); // no 5 ms wait before a requested frame

    std::error_code ignored;
    const fs::path root = fs::temp_directory_path() / ("larkwells-launch-bench-" + std::to_string(getpid()));
    fs::remove_all(root, ignored);
    fs::create_directories(root);

    std::vector<Timing> first, second, minimal, everyScreen;
    bool failed = false;
    // Round 0 warms the caches (libraries, fonts, files) and is not counted.
    for (int round = 0; round <= options.runs && !failed; ++round) {
        const fs::path data = root / ("data-" + std::to_string(round));
        const std::vector<std::string> app{options.app, "--data-dir", data.string()};
        Timing f, s, m;
        // The minimal window goes before, between or after the two launches in turn.
        if (round % 3 == 0)
            m = timedRun({options.minimal});
        f = timedRun(app); // the folder does not exist yet: a first launch
        if (round % 3 == 1)
            m = timedRun({options.minimal});
        s = timedRun(app);
        if (round % 3 == 2)
            m = timedRun({options.minimal});
        failed = f.wall < 0 || s.wall < 0 || m.wall < 0;
        if (round > 0) {
            first.push_back(f);
            second.push_back(s);
            minimal.push_back(m);
        }
        if (options.verbose)
            std::printf("round %2d%s: first %6.1f ms (cpu %6.1f)  second %6.1f ms (cpu %6.1f)  minimal %6.1f ms (cpu %6.1f)\n",
                        round, round == 0 ? " (warm-up)" : "", f.wall, f.cpu, s.wall, s.cpu, m.wall, m.cpu);
        // Every screen opened once (the self-test) on a few rounds only: it takes seconds.
        if (round > 0 && round <= options.screenRuns && !failed) {
            unsetenv("LARKWELLS_QUIT_AFTER_FIRST_FRAME");
            const Timing screens = timedRun({options.app, "--self-test", "--data-dir", data.string()});
            setenv("LARKWELLS_QUIT_AFTER_FIRST_FRAME", "1", 1);
            failed = screens.wall < 0;
            everyScreen.push_back(screens);
        }
        fs::remove_all(data, ignored);
    }
    fs::remove_all(root, ignored);
    if (failed) {
        std::fprintf(stderr, "a launch failed; no results\n");
        return 1;
    }

    std::printf("\nLaunch to first frame, %d interleaved runs each (QT_QPA_PLATFORM=%s)\n", options.runs,
                std::getenv("QT_QPA_PLATFORM"));
    std::printf("  %-34s %10s %9s %9s %12s %10s %12s\n", "", "median", "min", "max", "median cpu", "peak RSS",
                "to its exit");
    struct Medians {
        double wall, cpu, rss;
    };
    const auto row = [](const char *name, const std::vector<Timing> &runs) {
        std::vector<double> wall, cpu, rss, exitWall;
        for (const Timing &t : runs) {
            wall.push_back(t.wall);
            cpu.push_back(t.cpu);
            rss.push_back(t.rss);
            exitWall.push_back(t.exitWall);
        }
        const Medians m{median(wall), median(cpu), median(rss)};
        std::printf("  %-34s %7.1f ms %6.1f ms %6.1f ms %9.1f ms %7.1f MB %9.1f ms\n", name, m.wall,
                    *std::min_element(wall.begin(), wall.end()), *std::max_element(wall.begin(), wall.end()), m.cpu,
                    m.rss, median(exitWall));
        return m;
    };
    const Medians f = row("first launch (fresh data folder)", first);
    const Medians s = row("second launch", second);
    const Medians m = row("minimal Qt Quick window (floor)", minimal);
    const Medians e = row("every screen opened (self-test)", everyScreen);
    std::printf("\n");
    printTableRow({"second launch, wall", "bare window", s.wall, m.wall, "ms", 1.4});
    printTableRow({"second launch, processor", "bare window", s.cpu, m.cpu, "ms", 1.4});
    printTableRow({"first launch, wall", "second launch", f.wall, s.wall, "ms", 1.1});
    printTableRow({"first launch, processor", "second launch", f.cpu, s.cpu, "ms", 1.1});
    printTableRow({"peak RSS, second launch", "bare window", s.rss, m.rss, "MB", 1.2});
    printTableRow({"peak RSS, every screen opened", "bare window", e.rss, m.rss, "MB", 1.2});
    return 0;
}
