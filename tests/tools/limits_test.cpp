// Requests that take too long, and what is left when the service ends.
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <list>
#include <vector>

#include "routerdb.h"
#include "support/database.h"
#include "support/gate.h"
#include "support/peer.h"
#include "support/process.h"
#include "support/record.h"
#include "support/service.h"
#include "support/streams.h"
#include "support/system_log.h"

namespace {

using support::exchange;
using support::Peer;
using support::Process;
using support::request;
using support::Service;
using support::words;

using Lines = std::vector<std::string>;

constexpr char endless[] = "with recursive n(i) as (select 1 union all select i+1 from n) select count(*) from n;";

/// A service that serves an endless query.
class Limits : public testing::Test {
protected:
    explicit Limits(const char *seconds = "8") : service_({"--request-seconds", seconds}) {
        peer_.send(request(100, 1, endless));
        EXPECT_TRUE(service_.has_children(1));
        EXPECT_TRUE(support::eventually([] { return !support::lock_file_is_free(); }));
    }

    support::SystemLog log_;
    Service service_;
    Peer peer_;
};

class ShortLimits : public Limits {
protected:
    ShortLimits() : Limits("1") {}
};

TEST_F(ShortLimits, end_a_request_and_free_its_lock) {
    EXPECT_EQ(DbSqlExec(std::string("insert into user_timegroup(name) values('a');").data()), 0);  // waits for the lock
    EXPECT_EQ(peer_.receive(), "");
    EXPECT_EQ(exchange(request(100, 1, "select name from user_timegroup;")),
              words({100, 1, 2}) + std::string("a\0", 2));
    EXPECT_TRUE(service_.has_children(0));
    const Lines lines = log_.lines();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.back(), "27 a request took more than 1 seconds, its process was ended");
}

TEST_F(Limits, of_a_service_that_stops_are_two_seconds) {
    service_.signal(SIGTERM);
    EXPECT_EQ(service_.wait(), 0);
    EXPECT_EQ(peer_.receive(), "");
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST_F(Limits, of_a_service_that_is_killed_are_over_at_once) {
    service_.signal(SIGKILL);
    EXPECT_EQ(service_.wait(), 128 + SIGKILL);
    EXPECT_EQ(peer_.receive(), "");
    EXPECT_TRUE(support::eventually(support::lock_file_is_free));
    const Service next;
    EXPECT_EQ(exchange(request(100, 1, "select 7;")), words({100, 1, 2}) + std::string("7\0", 2));
}

// Whoever has the lock on a file beside the socket serves.
TEST(SqldStart, is_that_of_one_among_many) {
    const support::Gate start;
    std::list<Process> services;
    for (int n = 0; n < 8; ++n) {
        services.emplace_back([&start] {
            start.wait();
            return std::freopen("/dev/null", "w", stderr) != nullptr && support::become(support::sqld());
        });
    }
    start.open();
    const auto ended = [&services] {
        int count = 0;
        for (const Process &service : services) {
            count += service.has_ended() ? 1 : 0;
        }
        return count;
    };
    EXPECT_TRUE(support::eventually([&] { return ended() == 7; }));
    EXPECT_EQ(exchange(request(100, 1, "select 7;")), words({100, 1, 2}) + std::string("7\0", 2));
    for (Process &service : services) {
        if (!service.has_ended()) {
            kill(service.id(), SIGTERM);
            EXPECT_EQ(service.wait(), 0);
        }
    }
    EXPECT_FALSE(support::file_exists(support::service_socket));
}

}  // namespace
