#include "core/random.h"

#include <sys/random.h>
#include <sys/time.h>

#include <cstdint>
#include <cstdlib>

#include "build_profile.h"

namespace routerdb {

namespace {

unsigned microseconds() {
    timeval now{};
    gettimeofday(&now, nullptr);
    return static_cast<unsigned>(now.tv_usec);
}

/// Draws from the generator of the program, which is another one afterwards.
unsigned draw_from_program(unsigned limit) {
    // Spreading competing processes apart is all that is asked of it. NOLINTNEXTLINE(cert-msc50-cpp, cert-msc51-cpp)
    srand(microseconds());
    // NOLINTNEXTLINE(cert-msc30-c, cert-msc50-cpp)
    return static_cast<unsigned>(rand() * static_cast<double>(limit) * 0x1p-31);
}

/// Draws from the kernel. Where that has no random numbers yet, soon after its start, the time of day has to do.
unsigned draw_from_kernel(unsigned limit) {
    std::uint32_t drawn = 0;
    if (getrandom(&drawn, sizeof(drawn), GRND_NONBLOCK) != sizeof(drawn)) {
        constexpr std::uint32_t spreads_neighbors = 0x9e3779b1;  // 2^32 divided by the golden ratio
        drawn = microseconds() * spreads_neighbors;
    }
    return static_cast<unsigned>((std::uint64_t{drawn} * limit) >> 32U);
}

}  // namespace

unsigned random_below(unsigned limit) {
    return build_profile.leaves_program_state ? draw_from_kernel(limit) : draw_from_program(limit);
}

}  // namespace routerdb
