#include "harness/check.h"

#include <algorithm>
#include <cstdio>

#include "harness/each.h"

namespace bench {

namespace {

std::string outcome(const Profiles &profiles, const Operation &operation, Variant variant) {
    prepare(operation, variant);
    run(profiles, operation, variant);
    return operation.outcome();
}

void tell(const Operation &operation, Variant variant, const std::string &expected, const std::string &got) {
    const std::size_t common = std::min(expected.size(), got.size());
    const auto place = std::mismatch(expected.begin(), expected.begin() + static_cast<long>(common), got.begin());
    const auto at = static_cast<std::size_t>(place.first - expected.begin());
    const std::size_t from = at < 20 ? 0 : at - 20;
    std::fprintf(stderr,
                 "bench: %s, %.*s: differs at byte %zu of %zu (%zu expected)\n  expected  %.*s\n  got       %.*s\n",
                 operation.name, static_cast<int>(name_of(variant).size()), name_of(variant).data(), at, got.size(),
                 expected.size(), 60, expected.substr(from).c_str(), 60, got.substr(from).c_str());
}

}  // namespace

bool verify(const Profiles &profiles) {
    bool agree = true;
    for (const Operation &operation : operations()) {
        const std::string expected = outcome(profiles, operation, Variant::bare);
        if (expected.empty()) {
            std::fprintf(stderr, "bench: %s leaves nothing behind\n", operation.name);
            agree = false;
        }
        for (const Variant variant : variants_of(operation)) {
            const std::string got = outcome(profiles, operation, variant);
            if (got != expected) {
                tell(operation, variant, expected, got);
                agree = false;
            }
        }
    }
    return agree;
}

}  // namespace bench
