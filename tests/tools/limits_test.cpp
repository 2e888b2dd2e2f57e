// Requests that take too long, and what is left when the service ends.
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <list>
#include <vector>

#include "routerdb.h"
#include "support/database.h"
#include "support/gate.h"
#include "support/peer.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/service.h"
#include "support/streams.h"
#include "support/system_log.h"
#include "tools/question.h"

namespace {

using support::exchange;
using support::Peer;
using support::Process;
using support::request;
using support::Service;
using support::told;
using support::words;

using Lines = std::vector<std::string>;

using Arguments = std::vector<std::string>;

/// A service that serves an endless query.
class Limits : public testing::Test {
protected:
    explicit Limits(const Arguments &arguments = {}) : service_(arguments) {
        peer_.send(request(100, 1, endless));
        EXPECT_TRUE(support::eventually([] { return !support::lock_file_is_free(); }));
    }

    support::SystemLog log_;
    Service service_;
    Peer peer_;
};

class ShortLimits : public Limits {
protected:
    ShortLimits() : Limits({"--request-seconds", "1"}) {}
};

class LongLimits : public Limits {
protected:
    LongLimits() : Limits({"--request-seconds", "60"}) {}
};

class ForkLimits : public Limits {
protected:
    ForkLimits() : Limits({"--request-seconds", "1", "--fork"}) {}
};

/// The endless query holds the lock file, for which everybody waits.
void end_a_request(const Peer &peer, const support::SystemLog &log) {
    EXPECT_EQ(DbSqlExec(std::string("insert into user_timegroup(name) values('a');").data()), 0);
    EXPECT_EQ(peer.receive(), "");
    EXPECT_EQ(exchange(request(100, 1, "select name from user_timegroup;")),
              words({100, 1, 2}) + std::string("a\0", 2));
    EXPECT_EQ(log.lines().back(), told("ended, it took more than 1 seconds"));
}

TEST_F(ShortLimits, end_a_request_and_free_its_lock) {
    end_a_request(peer_, log_);
}

TEST_F(ForkLimits, end_a_request_and_free_its_lock) {
    end_a_request(peer_, log_);
    EXPECT_TRUE(service_.has_children(0));
}

TEST(SqldLimits, of_a_client_that_does_not_read_are_nobody_elses) {
    const Service service;
    const Peer peer;
    peer.send(request(100, 1, "select hex(zeroblob(1000000));"));  // more than a connection holds
    Service::collect_all();
    EXPECT_EQ(exchange(request(100, 1, "select 7;")), words({100, 1, 2}) + std::string("7\0", 2));
    EXPECT_EQ(peer.receive().size(), 12U + 2'000'001U) << "the others have waited until its time was over";
}

// With one worker each would take two seconds more than the one before.
TEST(SqldLimits, count_what_a_client_waits_for_in_a_queue) {
    const Service service({"--workers", "1", "--request-seconds", "2"});
    const int lock = get_db_lock();
    const auto start = std::chrono::steady_clock::now();
    std::list<Peer> peers(4);
    for (const Peer &peer : peers) {
        peer.send(request(100, 1, "select 7;"));
    }
    for (const Peer &peer : peers) {
        EXPECT_EQ(peer.receive(), "");
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(7));
    free_db_lock(lock);
    EXPECT_EQ(exchange(request(100, 1, "select 7;")), words({100, 1, 2}) + std::string("7\0", 2));
}

// It is in the hands of a worker for the second half of its time.
TEST(SqldLimits, count_what_a_client_has_waited_before_it_was_served) {
    const Service service({"--workers", "1", "--request-seconds", "6"});
    const int lock = get_db_lock();
    const auto start = std::chrono::steady_clock::now();
    const Peer first;
    first.send(request(100, 1, "select 7;"));
    const Peer second;
    second.send(request(100, 1, "select 7;"));
    usleep(3'000'000);
    kill(service.children().front(), SIGKILL);
    EXPECT_EQ(first.receive(), "");
    EXPECT_EQ(second.receive(), "");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(8));
    free_db_lock(lock);
}

// Where lists are capped they end with their room, which is the library's doing.
TEST(SqldLimits, of_rows_refuse_longer_lists_unless_lists_are_capped) {
    support::execute(
        "with recursive numbers(n) as (select 1 union all select n + 1 from numbers where n < 1000)"
        "insert into user_timegroup(name) select n from numbers;");
    const Service service;
    const support::SystemLog log;
    const std::string reply = exchange(request(5, 1, "select * from user_timegroup;"));
    EXPECT_EQ(reply.size(), support::build_profile.caps_lists ? 12U + 128 * 380 : 0U);
    EXPECT_EQ(log.lines(),
              Lines{support::build_profile.caps_lists
                        ? "27 user_timegroup has more rows than a list of 128 takes, the rest is left out\n"
                        : told("refused, it has more rows than a list takes")});
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)  // which need more memory than any limit allows
TEST(SqldLimits, of_memory_refuse_what_takes_more) {
    const std::string large = request(100, 1, "select length(hex(zeroblob(20000000)));");
    {
        const Service service({"--memory", "16"});
        const support::SystemLog log;
        EXPECT_EQ(exchange(large), "");
        EXPECT_EQ(log.lines(), Lines{told("refused, out of memory")});
        EXPECT_EQ(exchange(request(100, 1, "select 7;")), words({100, 1, 2}) + std::string("7\0", 2));
    }
    const Service service({"--memory", "256"});
    EXPECT_EQ(exchange(large), words({100, 1, 9}) + std::string("40000000\0", 9));
}
#endif

TEST_F(LongLimits, do_not_keep_a_service_that_stops_for_more_than_two_seconds) {
    const auto start = std::chrono::steady_clock::now();
    service_.signal(SIGTERM);
    EXPECT_EQ(service_.wait(), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
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
