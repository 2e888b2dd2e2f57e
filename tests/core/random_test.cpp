// The random first delay.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "routerdb.h"
#include "support/database.h"

namespace {

struct Platform {
    timeval now;
    std::vector<unsigned> seeds;
    std::vector<unsigned> sleeps;
    const support::Database *busy;  // until the first sleep
};

Platform *platform = nullptr;

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

    const support::Database other_;
    Platform platform_{{}, {}, {}, &other_};
};

}  // namespace

extern "C" {

int gettimeofday(timeval *__restrict now, void *__restrict /*zone*/) noexcept {
    *now = platform != nullptr ? platform->now : timeval{};
    return 0;
}

void srand(unsigned seed) noexcept {
    if (platform != nullptr) {
        platform->seeds.push_back(seed);
    }
    reinterpret_cast<void (*)(unsigned)>(dlsym(RTLD_NEXT, "srand"))(seed);
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

TEST_F(FirstDelay, is_seeded_with_the_microseconds_of_the_time_of_day) {
    at(1'700'000'000, 123'456);
    at(1'700'000'001, 0);
    EXPECT_EQ(platform_.seeds, (std::vector<unsigned>{123'456, 0}));
}

TEST_F(FirstDelay, is_the_same_for_calls_in_the_same_microsecond) {
    const unsigned first = at(1'700'000'000, 123'456);
    EXPECT_EQ(at(1'800'000'000, 123'456), first);
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

TEST_F(FirstDelay, resets_the_generator_of_the_process) {
    at(0, 42);
    const int after_a_call = std::rand();  // NOLINT(cert-msc30-c, cert-msc50-cpp)
    at(0, 42);
    EXPECT_EQ(std::rand(), after_a_call);  // NOLINT(cert-msc30-c, cert-msc50-cpp)
}

}  // namespace
