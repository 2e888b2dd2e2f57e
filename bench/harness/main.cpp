// bench: runs the operations of every variant, checks that they agree, times them, counts them.
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "harness/check.h"
#include "harness/count.h"
#include "harness/outcomes.h"
#include "harness/spawn.h"
#include "harness/time.h"

namespace {

constexpr char usage[] =
    "usage: bench verify|count|time EXACT MODERN [options]\n"
    "  verify                        every variant of every operation has the same outcome\n"
    "  count [VARIANT...]            each once, between marks for callgrind and strace\n"
    "  time [--benchmark_...]        each beside the bare variant, in turns\n"
    "EXACT and MODERN are the libraries. Runs inside the private root.\n";

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
    if (std::strcmp(argv[1], "verify") == 0) {
        return bench::verify(profiles) ? 0 : 1;
    }
    if (std::strcmp(argv[1], "count") == 0) {
        bench::count(profiles, argc - 4, argv + 4);
        return 0;
    }
    if (std::strcmp(argv[1], "time") == 0) {
        return bench::time(profiles, argc - 3, argv + 3);
    }
    std::fputs(usage, stderr);
    return 2;
}
