// SPDX-License-Identifier: GPL-3.0-or-later
// The whole process of a short command, as a script that calls velmaris-cli many times sees it:
// start, loading of the libraries, the station file, one recalculation, the JSON. The wall time
// of each run is the benchmark's time; the CPU time of the child (user + system) is a counter.
// VELMARIS_CLI names another velmaris-cli to compare with, e.g. one of an older build.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

std::string programm() {
    const char* anderes = std::getenv("VELMARIS_CLI");
    return anderes != nullptr ? anderes : VELMARIS_CLI_PFAD;
}

double kinder_cpu_sekunden() {
    rusage r{};
    getrusage(RUSAGE_CHILDREN, &r);
    return static_cast<double>(r.ru_utime.tv_sec + r.ru_stime.tv_sec) +
           static_cast<double>(r.ru_utime.tv_usec + r.ru_stime.tv_usec) * 1e-6;
}

// One run with its output thrown away; false when it could not start or did not end with 0.
bool einmal(const std::string& pfad, char* const argv[]) {
    posix_spawn_file_actions_t umleitung;
    posix_spawn_file_actions_init(&umleitung);
    posix_spawn_file_actions_addopen(&umleitung, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t kind = 0;
    const int fehler = posix_spawn(&kind, pfad.c_str(), &umleitung, nullptr, argv, environ);
    posix_spawn_file_actions_destroy(&umleitung);
    int status = 0;
    return fehler == 0 && waitpid(kind, &status, 0) == kind && WIFEXITED(status) &&
           WEXITSTATUS(status) == 0;
}

void BM_velmaris_cli_calc_neu(benchmark::State& state) {
    const std::string pfad = programm();
    std::string name = "velmaris-cli", calc = "calc", neu = "--new";
    char* const argv[] = {name.data(), calc.data(), neu.data(), nullptr};
    const double cpu_vorher = kinder_cpu_sekunden();
    for (auto _ : state) {
        if (!einmal(pfad, argv)) {
            state.SkipWithError(("cannot run " + pfad + " calc --new").c_str());
            return;
        }
    }
    state.counters["cpu_ms"] = benchmark::Counter((kinder_cpu_sekunden() - cpu_vorher) * 1e3 /
                                                  static_cast<double>(state.iterations()));
}
BENCHMARK(BM_velmaris_cli_calc_neu)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MinTime(2.0)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

} // namespace

BENCHMARK_MAIN();
