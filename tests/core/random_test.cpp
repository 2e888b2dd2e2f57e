// The random first delay, and where it is drawn from.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/random.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "routerdb.h"
#include "support/database.h"
#include "support/profile.h"

namespace {

struct Platform {
    timeval now;
    std::vector<std::string> calls;  // that a draw makes
    std::vector<unsigned> sleeps;
    const support::Database *busy;   // until the first sleep
    bool kernel_has_random_numbers;  // which then are what `drawn` says
    unsigned drawn;
};

Platform *platform = nullptr;

void note(const std::string &call) {
    if (platform != nullptr) {
        platform->calls.push_back(call);
    }
}

/// A time of day, a database that is busy once, and what the library makes of them.
class FirstDelay : public ::testing::Test {
protected:
    FirstDelay() { platform = &platform_; }
    ~FirstDelay() override { platform = nullptr; }

    unsigned at(time_t seconds, suseconds_t microseconds) {
        platform_.now = {seconds, microseconds};
        other_.execute("begin exclusive;");
        EXPECT_EQ(GET_DB_SQL_INT_COUNT_ROUTE("select 5 from sqlite_master limit 1;"), 5);
        return platform_.sleeps.back();
    }

    unsigned with(unsigned drawn) {
        platform_.kernel_has_random_numbers = true;
        platform_.drawn = drawn;
        return at(0, 0);
    }

    const support::Database other_;
    Platform platform_{{}, {}, {}, &other_, false, 0};
};

}  // namespace

extern "C" {

int gettimeofday(timeval *__restrict now, void *__restrict /*zone*/) noexcept {
    note("gettimeofday");
    *now = platform != nullptr ? platform->now : timeval{};
    return 0;
}

void srand(unsigned seed) noexcept {
    note("srand " + std::to_string(seed));
    reinterpret_cast<void (*)(unsigned)>(dlsym(RTLD_NEXT, "srand"))(seed);
}

int rand() noexcept {
    note("rand");
    return reinterpret_cast<int (*)()>(dlsym(RTLD_NEXT, "rand"))();
}

ssize_t getrandom(void *drawn, size_t size, unsigned flags) {
    note("getrandom " + std::to_string(size) + (flags == GRND_NONBLOCK ? " at once" : ""));
    if (platform == nullptr || !platform->kernel_has_random_numbers || size != sizeof(platform->drawn)) {
        return -1;
    }
    std::memcpy(drawn, &platform->drawn, size);
    return static_cast<ssize_t>(size);
}

int usleep(useconds_t microseconds) {
    if (platform != nullptr) {
        platform->sleeps.push_back(microseconds);
        platform->busy->execute("commit;");
    }
    return 0;
}

}  // extern "C"

namespace {

using Lines = std::vector<std::string>;

constexpr bool from_kernel = support::build_profile.leaves_program_state;

TEST_F(FirstDelay, is_drawn_where_the_profile_says) {
    at(1'700'000'000, 123'456);
    EXPECT_EQ(platform_.calls, from_kernel ? (Lines{"getrandom 4 at once", "gettimeofday"})
                                           : (Lines{"gettimeofday", "srand 123456", "rand"}));
    platform_.calls.clear();
    with(0);
    EXPECT_EQ(platform_.calls, from_kernel ? Lines{"getrandom 4 at once"} : (Lines{"gettimeofday", "srand 0", "rand"}));
}

TEST_F(FirstDelay, is_the_same_for_calls_in_the_same_microsecond_unless_the_kernel_knows_better) {
    const unsigned first = at(1'700'000'000, 123'456);
    EXPECT_EQ(at(1'800'000'000, 123'456), first);
    EXPECT_EQ(with(0) == with(4294967295), !from_kernel);
}

TEST_F(FirstDelay, spreads_what_the_kernel_draws_over_all_delays) {
    if (from_kernel) {
        EXPECT_EQ(with(0), 56U);
        EXPECT_EQ(with(42949672), 56U);
        EXPECT_EQ(with(42949673), 57U);
        EXPECT_EQ(with(2147483648), 106U);
        EXPECT_EQ(with(4294967295), 155U);
    }
}

TEST_F(FirstDelay, spreads_calls_apart) {
    std::vector<int> seen(156);
    for (suseconds_t microseconds = 0; microseconds < 1000; ++microseconds) {
        const unsigned sleep = at(0, microseconds);
        ASSERT_GE(sleep, 56U);
        ASSERT_LE(sleep, 155U);
        seen[sleep] = 1;
    }
    EXPECT_GT(std::count(seen.begin(), seen.end(), 1), 90);
}

/// What rand() gives after a call when the program has seeded it with the same number each time.
int rand_after_a_call(suseconds_t microseconds) {
    platform->now = {0, microseconds};
    std::srand(7);  // NOLINT(cert-msc32-c, cert-msc51-cpp)
    EXPECT_EQ(GET_DB_SQL_INT_COUNT_ROUTE("select 5;"), 5);
    return std::rand();  // NOLINT(cert-msc30-c, cert-msc50-cpp)
}

TEST_F(FirstDelay, resets_the_generator_of_the_program_or_leaves_it_alone) {
    std::srand(7);                        // NOLINT(cert-msc32-c, cert-msc51-cpp)
    const int undisturbed = std::rand();  // NOLINT(cert-msc30-c, cert-msc50-cpp)
    EXPECT_EQ(rand_after_a_call(42) == undisturbed, from_kernel);
    EXPECT_EQ(rand_after_a_call(43) == undisturbed, from_kernel);
    EXPECT_EQ(rand_after_a_call(42), rand_after_a_call(42));
}

}  // namespace
