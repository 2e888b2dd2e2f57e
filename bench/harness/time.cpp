#include "harness/time.h"

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <algorithm>
#include <ctime>
#include <iostream>

#include "harness/each.h"

namespace bench {

namespace {

double seconds(const timeval &time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

double on_clock(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Processor time of this process and of the children that it waited for, or the time that passes.
double time_of(const Operation &operation) {
    if (operation.clock == Clock::elapsed) {
        return on_clock(CLOCK_MONOTONIC);
    }
    rusage children{};
    getrusage(RUSAGE_CHILDREN, &children);
    return on_clock(CLOCK_PROCESS_CPUTIME_ID) + seconds(children.ru_utime) + seconds(children.ru_stime);
}

double measure(const Profiles &profiles, const Operation &operation, Variant variant) {
    prepare(operation, variant);
    const double start = time_of(operation);
    run(profiles, operation, variant);
    return time_of(operation) - start;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// One round is a run of the variant and one of the bare variant, which goes first in every other round.
void take_turns(benchmark::State &state, const Profiles &profiles, const Operation &operation, Variant variant) {
    std::vector<double> ratios;
    std::vector<double> times;
    std::vector<double> bare_times;
    measure(profiles, operation, variant);
    measure(profiles, operation, Variant::bare);
    for (auto _ : state) {
        const bool bare_first = ratios.size() % 2 == 1;
        double bare = bare_first ? measure(profiles, operation, Variant::bare) : 0;
        const double own = measure(profiles, operation, variant);
        bare = bare_first ? bare : measure(profiles, operation, Variant::bare);
        state.SetIterationTime(own);
        ratios.push_back(own / bare);
        times.push_back(own);
        bare_times.push_back(bare);
    }
    state.counters["ratio"] = median(ratios);
    state.counters["microseconds"] = median(times) * 1e6;
    state.counters["bare_microseconds"] = median(bare_times) * 1e6;
}

}  // namespace

int time(const Profiles &profiles, int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    for (const Operation &operation : operations()) {
        for (const Variant variant : variants_of(operation)) {
            if (variant != Variant::bare) {
                const std::string name = std::string(operation.name) + "|" + std::string(name_of(variant));
                benchmark::RegisterBenchmark(name.c_str(), take_turns, profiles, operation, variant)
                    ->UseManualTime()
                    ->Iterations(operation.rounds);
            }
        }
    }
    benchmark::ConsoleReporter on_error;
    on_error.SetOutputStream(&std::cerr);
    benchmark::RunSpecifiedBenchmarks(&on_error);
    return 0;
}

}  // namespace bench
