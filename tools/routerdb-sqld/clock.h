// The clock that limits are measured with.
#pragma once

#include <cstdint>
#include <ctime>

namespace sqld {

inline std::int64_t now_ms() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

}  // namespace sqld
