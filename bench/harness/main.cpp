// bench: runs the operations of every variant, checks that they agree, times them, counts them.
#include <cstdio>
#include <string>

#include "harness/check.h"
#include "harness/contention.h"
#include "harness/count.h"
#include "harness/curves.h"
#include "harness/outcomes.h"
#include "harness/spawn.h"
#include "harness/time.h"

namespace {

constexpr char usage[] =
    "usage: bench verify|count|curves|contention|time EXACT MODERN [options]\n"
    "  verify                        every variant of every operation has the same outcome\n"
    "  count WHICH [VARIANT...]      each, between marks for callgrind and strace; WHICH is all, long or short\n"
    "  curves                        some on tables of different sizes, between such marks\n"
    "  contention FILE               writers at the same time\n"
    "  time [--benchmark_...]        each beside the bare variant, in turns\n"
    "EXACT and MODERN are the libraries. Runs inside the private root.\n";

int run(const std::string &mode, const bench::Profiles &profiles, int argc, char **argv) {
    if (mode == "verify") {
        return bench::verify(profiles) ? 0 : 1;
    }
    if (mode == "count" && argc > 4) {
        bench::count(profiles, argv[4], argc - 5, argv + 5);
        return 0;
    }
    if (mode == "curves") {
        bench::count_curves(profiles);
        return 0;
    }
    if (mode == "contention" && argc == 5) {
        bench::contend(profiles, argv[4]);
        return 0;
    }
    if (mode == "time") {
        return bench::time(profiles, argc - 3, argv + 3);
    }
    std::fputs(usage, stderr);
    return 2;
}

}  // namespace

/// In place of the C library's, for all variants alike: the shell is not what is measured.
extern "C" int system(const char * /*command*/) {
    return 0;
}

int main(int argc, char **argv) {
    if (argc < 4) {
        std::fputs(usage, stderr);
        return 2;
    }
    const bench::Profiles profiles{bench::load_library(argv[2], bench::beside("start-exact")),
                                   bench::load_library(argv[3], bench::beside("start-modern"))};
    bench::outcomes::set_up();
    return run(argv[1], profiles, argc, argv);
}
