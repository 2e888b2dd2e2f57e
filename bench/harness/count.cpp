#include "harness/count.h"

#include <sys/wait.h>
#include <unistd.h>
#include <valgrind/callgrind.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "harness/each.h"
#include "harness/outcomes.h"

namespace bench {

namespace {

void mark(const char *what, const std::string &name) {
    const std::string path = std::string(what) + name;
    [[maybe_unused]] const int absent = access(path.c_str(), F_OK);
}

void count_runs(const Profiles &profiles, const Operation &operation, Variant variant, const std::string &name) {
    if (variant == Variant::modern && operation.prepare != outcomes::write_elsewhere) {
        outcomes::let_settle();
    }
    for (int warming = 0; warming < 2 && !operation.is_long(); ++warming) {
        prepare(operation, variant);
        run(profiles, operation, variant);
    }
    const int runs = operation.is_long() ? 1 : 3;
    for (int repetition = 0; repetition < runs; ++repetition) {
        prepare(operation, variant);
        setenv("BENCH_CHILD", ("child," + name).c_str(), 1);
        mark("begin:", name);
        CALLGRIND_ZERO_STATS;
        run(profiles, operation, variant);
        CALLGRIND_DUMP_STATS_AT(name.c_str());
        mark("end:", name);
        setenv("BENCH_CHILD", "self", 1);
    }
}

}  // namespace

void count_apart(const Profiles &profiles, const Operation &operation, Variant variant, const std::string &title) {
    const pid_t child = fork();
    if (child == 0) {
        count_runs(profiles, operation, variant, title + "|" + std::string(name_of(variant)));
        _exit(0);
    }
    int status = -1;
    if (child < 0 || waitpid(child, &status, 0) != child || status != 0) {
        std::fprintf(stderr, "bench: %s did not end well\n", operation.name);
        std::exit(1);
    }
}

void count(const Profiles &profiles, std::string_view which, int variant_count, char **variants) {
    const auto wanted = [&](Variant variant) {
        return variant_count == 0 || std::any_of(variants, variants + variant_count,
                                                 [&](const char *name) { return name_of(variant) == name; });
    };
    for (const Operation &operation : operations()) {
        if (which != "all" && which != (operation.is_long() ? "long" : "short")) {
            continue;
        }
        for (const Variant variant : variants_of(operation)) {
            if (wanted(variant)) {
                count_apart(profiles, operation, variant, operation.name);
            }
        }
    }
}

}  // namespace bench
