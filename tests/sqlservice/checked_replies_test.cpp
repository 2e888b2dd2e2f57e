// What is a reply and what is none, where replies are checked: its size, its sender, the time that it takes.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

#include "sqlservice/exchange.h"
#include "support/database.h"
#include "support/fake_service.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/streams.h"

namespace {

using support::Exchange;
using support::FakeService;
using support::words;

/// What the platform answers in place of itself.
struct Platform {
    uid_t peer = 0;                      // who listens
    std::vector<timespec> clock;         // one answer for each question; the last one stays
    std::vector<long> receive_timeouts;  // in milliseconds, as they are set
};

thread_local Platform *platform;  // of the caller; the service has the real one

constexpr std::size_t longest_reply = 1048576;
constexpr std::size_t longest_scalar = 65536;

using support::build_profile;

/// One exchange on a platform.
struct Outcome {
    int result;
    int reason;
    std::string error;
};

Outcome exchange_on(Platform &there, const std::string &reply, std::uint32_t table = ROUTERDB_TABLE_URL_FILTER) {
    const FakeService service(reply);
    const SqlRequest request{table, ROUTERDB_QUERY, 9, "select 1;"};
    Exchange exchange;
    Outcome outcome{};
    const auto streams = support::streams_of([&] {
        platform = &there;
        errno = E2BIG;
        outcome.result = sqlclient_cmd(&request, &exchange.reply);
        outcome.reason = errno;
        platform = nullptr;
    });
    outcome.error = streams.error;
    return outcome;
}

/// Expects a failure where the build profile checks, and success elsewhere.
void expect_checked(bool checked, const Outcome &outcome, int reason, const char *message) {
    EXPECT_EQ(outcome.result, checked ? -1 : 0);
    EXPECT_EQ(outcome.error, checked ? message : "");
    if (checked) {
        EXPECT_EQ(outcome.reason, reason);
    }
}

TEST(CheckedReply, that_is_one_leaves_errno_alone) {
    Platform plain;
    const Outcome outcome = exchange_on(plain, support::reply_of("data"));
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(outcome.reason, E2BIG);
}

TEST(CheckedReply, of_more_than_a_mebibyte_is_none) {
    Platform plain;
    EXPECT_EQ(exchange_on(plain, support::reply_of(std::string(longest_reply, 'x'))).result, 0);
    expect_checked(build_profile.checks_replies,
                   exchange_on(plain, support::reply_of(std::string(longest_reply + 1, 'x'))), EPROTO,
                   "recv header from sql socket server fail: Protocol error\n");
}

TEST(CheckedReply, to_a_question_of_more_than_64_kibibytes_is_none) {
    Platform plain;
    EXPECT_EQ(exchange_on(plain, support::reply_of(std::string(longest_scalar, ' ')), ROUTERDB_TABLE_SCALAR).result, 0);
    expect_checked(build_profile.checks_replies,
                   exchange_on(plain, support::reply_of(std::string(longest_scalar + 1, ' ')), ROUTERDB_TABLE_SCALAR),
                   EPROTO, "recv header from sql socket server fail: Protocol error\n");
}

TEST(CheckedReply, that_announces_2_gibibytes_costs_no_memory) {
    if (!build_profile.checks_replies) {
        return;
    }
    Platform plain;
    expect_checked(build_profile.checks_replies, exchange_on(plain, words({0, 0, 0x7fffffff})), EPROTO,
                   "recv header from sql socket server fail: Protocol error\n");
}

TEST(CheckedReply, breaks_off_inside_its_header_with_a_reason) {
    Platform plain;
    const Outcome outcome = exchange_on(plain, "short");
    EXPECT_EQ(outcome.result, -1);
    if (build_profile.checks_replies) {
        EXPECT_EQ(outcome.reason, EPROTO);
    }
}

TEST(CheckedReply, of_a_stranger_is_not_asked_for) {
    Platform strange;
    strange.peer = 4711;
    expect_checked(build_profile.checks_service, exchange_on(strange, support::reply_of("data")), EACCES,
                   "cannot connect sql socket client: Permission denied\n");
}

TEST(CheckedReply, of_the_owner_of_the_database_is_taken) {
    Platform owned;
    struct stat database {};
    ASSERT_EQ(stat(support::main_database, &database), 0);
    owned.peer = database.st_uid;
    EXPECT_EQ(exchange_on(owned, support::reply_of("data")).result, 0);
}

TEST(CheckedReply, has_ten_seconds_in_all) {
    Platform slow;
    slow.clock = {{100, 0}, {100, 0}, {104, 500'000'000}, {109, 0}};
    const Outcome outcome = exchange_on(slow, support::reply_of("data"));
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(slow.receive_timeouts,
              (build_profile.limits_exchange ? std::vector<long>{10'000, 5'500, 1'000} : std::vector<long>{10'000}));
}

TEST(CheckedReply, is_not_asked_for_when_connecting_has_taken_the_time) {
    Platform slow;
    slow.clock = {{100, 0}, {110, 0}};
    expect_checked(build_profile.limits_exchange, exchange_on(slow, support::reply_of("data")), ETIMEDOUT,
                   "cannot connect sql socket client: Resource temporarily unavailable\n");
}

TEST(CheckedReply, that_takes_longer_is_none) {
    Platform slow;
    slow.clock = {{100, 0}, {100, 0}, {100, 0}, {110, 0}};
    expect_checked(build_profile.limits_exchange, exchange_on(slow, support::reply_of("data")), ETIMEDOUT,
                   "recv data from sql socket server fail: Resource temporarily unavailable\n");
}

}  // namespace

extern "C" {

int getsockopt(int fd, int level, int option, void *value, socklen_t *size) noexcept {
    static const auto real = reinterpret_cast<decltype(&getsockopt)>(dlsym(RTLD_NEXT, "getsockopt"));
    const int result = real(fd, level, option, value, size);
    if (platform != nullptr && option == SO_PEERCRED) {
        static_cast<ucred *>(value)->uid = platform->peer;
    }
    return result;
}

int setsockopt(int fd, int level, int option, const void *value, socklen_t size) noexcept {
    static const auto real = reinterpret_cast<decltype(&setsockopt)>(dlsym(RTLD_NEXT, "setsockopt"));
    if (platform != nullptr && option == SO_RCVTIMEO) {
        const auto *time = static_cast<const timeval *>(value);
        platform->receive_timeouts.push_back(time->tv_sec * 1000L + time->tv_usec / 1000L);
    }
    return real(fd, level, option, value, size);
}

int clock_gettime(clockid_t clock, timespec *now) noexcept {
    static const auto real = reinterpret_cast<decltype(&clock_gettime)>(dlsym(RTLD_NEXT, "clock_gettime"));
    if (platform == nullptr || platform->clock.empty() || clock != CLOCK_MONOTONIC) {
        return real(clock, now);
    }
    *now = platform->clock.front();
    if (platform->clock.size() > 1) {
        platform->clock.erase(platform->clock.begin());
    }
    return 0;
}

}  // extern "C"
