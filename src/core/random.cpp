#include "core/random.h"

#include <sys/time.h>

#include <cstdlib>

namespace routerdb {

unsigned random_below(unsigned limit) {
    timeval now{};
    gettimeofday(&now, nullptr);
    // Spreading competing processes apart is all that is asked of it. NOLINTNEXTLINE(cert-msc50-cpp, cert-msc51-cpp)
    srand(static_cast<unsigned>(now.tv_usec));
    // NOLINTNEXTLINE(cert-msc30-c, cert-msc50-cpp)
    return static_cast<unsigned>(rand() * static_cast<double>(limit) * 0x1p-31);
}

}  // namespace routerdb
