// These functions stand in front of the C library's.
#include "soak/clock.h"

#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <ctime>

namespace {

constexpr long hour = 3600;

bool goes_back = false;
long hours = 0;

timespec now(clockid_t clock) {
    timespec time{};
    syscall(SYS_clock_gettime, clock, &time);
    if (goes_back && clock == CLOCK_REALTIME) {
        time.tv_sec -= ++hours * hour;
    }
    return time;
}

}  // namespace

namespace soak {

void set_clock_back(bool back) {
    goes_back = back;
}

}  // namespace soak

extern "C" {

int clock_gettime(clockid_t clock, timespec *time) noexcept {
    *time = now(clock);
    return 0;
}

int gettimeofday(timeval *time, void * /*zone*/) noexcept {
    const timespec real = now(CLOCK_REALTIME);
    *time = {real.tv_sec, real.tv_nsec / 1000};
    return 0;
}

time_t time(time_t *time) noexcept {
    const time_t seconds = now(CLOCK_REALTIME).tv_sec;
    if (time != nullptr) {
        *time = seconds;
    }
    return seconds;
}

}  // extern "C"
