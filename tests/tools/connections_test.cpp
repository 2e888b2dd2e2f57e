// Connections whose requests do not become whole, and replies that nobody takes.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <list>

#include "support/database.h"
#include "support/gate.h"
#include "support/peer.h"
#include "support/process.h"
#include "support/service.h"
#include "support/system_log.h"
#include "tools/question.h"

namespace {

using support::exchange;
using support::Peer;
using support::request;
using support::told;

using Clock = std::chrono::steady_clock;

TEST(SqldConnections, of_a_process_are_64_and_the_oldest_goes) {
    const support::Service service;
    const support::SystemLog log;
    std::list<Peer> peers;
    for (int n = 0; n < 64; ++n) {
        peers.emplace_back();
        peers.back().send(question().substr(0, 20));
    }
    support::Service::collect_all();  // the 65th
    EXPECT_EQ(peers.front().receive(), "");
    peers.pop_front();
    for (const Peer &peer : peers) {
        EXPECT_FALSE(peer.hung_up());
        peer.send(question().substr(20));
        EXPECT_EQ(peer.receive(), answer());
    }
    EXPECT_EQ(log.lines().front(), told("refused, its process has too many connections"));
}

TEST(SqldConnections, of_a_process_that_all_wait_leave_no_room_for_another) {
    const support::Service service({"--workers", "1", "--request-seconds", "60"});
    const support::SystemLog log;
    const Peer busy;
    busy.send(request(100, 1, endless));
    ASSERT_TRUE(support::eventually([] { return !support::lock_file_is_free(); }));
    std::list<Peer> waiting(64);
    for (const Peer &peer : waiting) {
        peer.send(question());
    }
    const Peer another;
    EXPECT_EQ(another.receive(), "");
    for (const Peer &peer : waiting) {
        EXPECT_FALSE(peer.hung_up());
    }
    EXPECT_EQ(log.lines(), std::vector<std::string>{told("refused, its process has too many connections")});
}

TEST(SqldConnections, in_all_are_256_and_the_oldest_goes) {
    const support::Service service;
    const support::SystemLog log;
    const Peer oldest;
    oldest.send(question().substr(0, 20));
    support::Service::collect_all();
    std::list<support::Process> crowd;
    const support::Gate end;
    for (int n = 0; n < 5; ++n) {
        crowd.emplace_back([&end] {
            const std::list<Peer> peers(51);
            for (const Peer &peer : peers) {
                peer.send(question().substr(0, 20));
            }
            support::Service::collect_all();
            end.wait();
            return true;
        });
    }
    std::vector<std::string> lines;
    const auto is_given_up = [&] {
        const std::vector<std::string> further = log.lines();
        lines.insert(lines.end(), further.begin(), further.end());
        return std::count(lines.begin(), lines.end(), told("refused, there are too many connections")) == 1;
    };
    EXPECT_TRUE(support::eventually(is_given_up));
    EXPECT_EQ(oldest.receive(), "");
    EXPECT_EQ(exchange(question()), answer());
    end.open();
}

TEST(SqldConnections, of_peers_that_dawdle_are_dropped_and_others_served_meanwhile) {
    support::execute(url_rows);
    const support::Service service({"--request-seconds", "60"});
    const support::SystemLog log;
    const Clock::time_point start = Clock::now();
    const Peer silent;
    const Peer trickling;
    const Peer not_reading;
    not_reading.send(url_list());
    const std::string slow = request(5, 2, std::string(1000, ' '));
    trickling.send(slow.substr(0, 12));
    std::size_t trickled = 12;
    Clock::duration header{};
    Clock::duration text{};
    std::vector<std::string> reasons;
    while (reasons.size() < 3 && Clock::now() - start < std::chrono::seconds(60)) {
        header = silent.hung_up() ? header : Clock::now() - start;
        text = trickling.hung_up() ? text : Clock::now() - start;
        trickling.send(slow.substr(trickled++, 1));
        EXPECT_EQ(exchange(question()), answer());
        usleep(50'000);
        for (const std::string &line : log.lines()) {
            reasons.push_back(line);
        }
    }
    EXPECT_GE(header, std::chrono::milliseconds(800));
    EXPECT_LT(header, std::chrono::milliseconds(4500));  // a text has more
    EXPECT_GE(text, std::chrono::milliseconds(4500));
    EXPECT_LT(text, std::chrono::seconds(30));
    EXPECT_LT(not_reading.receive().size(), std::size_t{128} * 1952);  // a connection holds less
    std::sort(reasons.begin(), reasons.end());
    EXPECT_EQ(reasons, (std::vector<std::string>{told("answered, its reply is not taken"),
                                                 told("refused, its header comes too slowly"),
                                                 told("refused, its text comes too slowly")}));
}

}  // namespace
