// Many peers at once, and peers that behave badly.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <list>

#include "support/database.h"
#include "support/peer.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/service.h"
#include "support/system_log.h"

namespace {

using support::exchange;
using support::Peer;
using support::request;
using support::words;

using Clock = std::chrono::steady_clock;

std::string question() {
    return request(100, 1, "select 'answer';");
}

std::string answer() {
    return words({100, 1, 7}) + std::string("answer\0", 7);
}

TEST(SqldLoad, serves_32_connections_at_once_and_the_others_after_them) {
    const support::Service service;
    std::list<Peer> peers;
    for (int i = 0; i < 40; ++i) {
        peers.emplace_back();
        EXPECT_TRUE(peers.back().send(question().substr(0, 12)));
    }
    ASSERT_TRUE(service.has_children(32));
    usleep(200'000);
    EXPECT_EQ(service.children().size(), 32U);
    for (Peer &peer : peers) {
        EXPECT_LE(service.children().size(), 32U);
        peer.send(question().substr(12));
        EXPECT_EQ(peer.receive(), answer());
    }
    EXPECT_TRUE(service.has_children(0));
}

TEST(SqldLoad, lives_on_when_processes_that_serve_a_connection_die) {
    const support::Service service;
    for (int round = 0; round < 2; ++round) {
        std::list<Peer> peers(32);
        ASSERT_TRUE(service.has_children(32));
        for (const pid_t child : service.children()) {
            kill(child, SIGKILL);
        }
        for (const Peer &peer : peers) {
            EXPECT_EQ(peer.receive(), "");
        }
        EXPECT_EQ(exchange(question()), answer());
    }
}

TEST(SqldLoad, says_which_signal_has_ended_a_request) {
    const support::Service service;
    const support::SystemLog log;
    const Peer peer;
    ASSERT_TRUE(service.has_children(1));
    kill(service.children().front(), SIGTERM);
    EXPECT_EQ(peer.receive(), "");
    std::vector<std::string> lines;
    EXPECT_TRUE(support::eventually([&] { return !(lines = log.lines()).empty(); }));
    EXPECT_EQ(lines, std::vector<std::string>{"27 a request ended its process with signal 15"});
}

TEST(SqldLoad, drops_peers_that_dawdle_after_five_seconds_and_serves_the_others_meanwhile) {
    constexpr std::size_t big_list = std::size_t{200} * 1952;  // more than a connection holds
    support::execute(
        "with recursive numbers(n) as (select 1 union all select n + 1 from numbers where n < 200)"
        "insert into filter_url(name) select n from numbers;");
    const support::Service service;
    const support::SystemLog log;
    const Peer silent;
    const Peer trickling;
    const Peer not_reading;
    not_reading.send(request(2, 1, "select * from filter_url;"));
    ASSERT_TRUE(service.has_children(3));

    const std::string slow = request(5, 2, std::string(1000, ' '));
    std::size_t trickled = 0;
    const Clock::time_point start = Clock::now();
    Clock::duration patience{};
    while (!service.children().empty() && Clock::now() - start < std::chrono::seconds(60)) {
        if (!silent.hung_up()) {
            patience = Clock::now() - start;
        }
        trickling.send(slow.substr(trickled++, 1));
        EXPECT_EQ(exchange(question()), answer());
        usleep(100'000);
    }
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(60));
    EXPECT_GE(patience, std::chrono::seconds(4));
    EXPECT_GT(trickled, 9U);
    EXPECT_TRUE(trickling.hung_up());
    EXPECT_LT(not_reading.receive().size(), big_list);
    std::vector<std::string> reasons = log.lines();
    // The list of the one that does not read is capped in some profiles, which is told as well.
    reasons.erase(std::remove(reasons.begin(), reasons.end(),
                              "27 filter_url has more rows than a list of 128 takes, the rest is left out\n"),
                  reasons.end());
    std::sort(reasons.begin(), reasons.end());
    const std::string own = " (user " + std::to_string(getuid()) + ", process " + std::to_string(getpid()) + ")";
    EXPECT_EQ(reasons, (std::vector<std::string>{"28 request answered, its reply is not taken" + own,
                                                 "28 request refused, its header comes too slowly" + own,
                                                 "28 request refused, its text comes too slowly" + own}));
}

}  // namespace
