#include "harness/count.h"

#include <unistd.h>
#include <valgrind/callgrind.h>

#include <algorithm>

#include "harness/each.h"

namespace bench {

namespace {

void mark(const char *what, const std::string &name) {
    const std::string path = std::string(what) + name;
    [[maybe_unused]] const int absent = access(path.c_str(), F_OK);
}

void count_one(const Profiles &profiles, const Operation &operation, Variant variant) {
    const std::string name = std::string(operation.name) + "/" + std::string(name_of(variant));
    prepare(operation);
    run(profiles, operation, variant);
    prepare(operation);
    mark("begin:", name);
    CALLGRIND_ZERO_STATS;
    run(profiles, operation, variant);
    CALLGRIND_DUMP_STATS_AT(name.c_str());
    mark("end:", name);
}

}  // namespace

void count(const Profiles &profiles, int variant_count, char **variants) {
    const auto wanted = [&](Variant variant) {
        return variant_count == 0 ||
               std::any_of(variants, variants + variant_count, [&](const char *name) { return name_of(variant) == name; });
    };
    for (const Operation &operation : operations()) {
        for (const Variant variant : variants_of(operation)) {
            if (wanted(variant)) {
                count_one(profiles, operation, variant);
            }
        }
    }
}

}  // namespace bench
