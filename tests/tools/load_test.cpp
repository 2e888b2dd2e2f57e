// Many requests at once, and the processes that serve them.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <list>

#include "routerdb.h"
#include "support/database.h"
#include "support/peer.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/service.h"
#include "support/system_log.h"
#include "tools/question.h"

namespace {

using support::exchange;
using support::Peer;
using support::request;
using support::told;
using support::words;

/// Connections that have asked, and the lock that keeps them from being answered.
class Waiting {
public:
    explicit Waiting(std::size_t count) : lock_(get_db_lock()), peers_(count) {
        for (const Peer &peer : peers_) {
            EXPECT_TRUE(peer.send(question()));
        }
        support::Service::collect_all();
    }
    Waiting(const Waiting &) = delete;
    Waiting &operator=(const Waiting &) = delete;
    ~Waiting() { free_db_lock(lock_); }

    /// Lets them have their answers.
    void let_go() {
        free_db_lock(lock_);
        lock_ = get_db_lock();
        free_db_lock(lock_);
        for (const Peer &peer : peers_) {
            EXPECT_EQ(peer.receive(), answer());
        }
        lock_ = get_db_lock();
    }

    /// How many are hung up on without an answer.
    void expect_nothing() const {
        for (const Peer &peer : peers_) {
            EXPECT_EQ(peer.receive(), "");
        }
    }

private:
    int lock_;
    std::list<Peer> peers_;
};

TEST(SqldLoad, has_a_process_for_each_request_on_demand_up_to_32) {
    const support::Service service({"--fork"});
    EXPECT_TRUE(service.has_children(0));
    Waiting waiting(40);
    ASSERT_TRUE(service.has_children(32));
    usleep(100'000);
    EXPECT_EQ(service.children().size(), 32U);
    waiting.let_go();
    EXPECT_TRUE(service.has_children(0));
}

TEST(SqldLoad, has_workers_from_the_start_and_no_more_of_them) {
    const support::Service service({"--workers", "3"});
    ASSERT_TRUE(service.has_children(3));
    const std::vector<pid_t> workers = service.children();
    Waiting waiting(40);
    EXPECT_EQ(service.children(), workers);
    waiting.let_go();
    EXPECT_EQ(service.children(), workers);
}

TEST(SqldLoad, has_as_many_workers_as_processors_and_at_most_four) {
    const support::Service service;
    const long processors = sysconf(_SC_NPROCESSORS_ONLN);
    EXPECT_TRUE(service.has_children(static_cast<std::size_t>(std::min(processors, 4L))));
}

TEST(SqldLoad, replaces_a_worker_after_a_thousand_requests) {
    const support::Service service({"--workers", "1"});
    ASSERT_TRUE(service.has_children(1));
    const std::vector<pid_t> first = service.children();
    for (int n = 1; n < 1000; ++n) {
        ASSERT_EQ(exchange(question()), answer()) << n;
    }
    EXPECT_EQ(service.children(), first);
    EXPECT_EQ(exchange(question()), answer());
    EXPECT_TRUE(support::eventually([&] { return service.has_children(1) && service.children() != first; }));
    EXPECT_EQ(exchange(question()), answer());
}

TEST(SqldLoad, replaces_a_worker_that_has_grown) {
    const support::Service service({"--workers", "1", "--memory", "32"});
    ASSERT_TRUE(service.has_children(1));
    const std::vector<pid_t> first = service.children();
    EXPECT_EQ(exchange(request(100, 1, "select length(hex(zeroblob(5000000)));")),
              support::words({100, 1, 9}) + std::string("10000000\0", 9));
    EXPECT_TRUE(support::eventually([&] { return service.has_children(1) && service.children() != first; }));
}

class SqldProcesses : public testing::TestWithParam<const char *> {};

TEST_P(SqldProcesses, may_die_and_the_service_lives_on) {
    const support::Service service({"--workers", "4", GetParam()});
    for (int round = 0; round < 2; ++round) {
        const Waiting waiting(4);
        ASSERT_TRUE(service.has_children(4));
        for (const pid_t child : service.children()) {
            kill(child, SIGKILL);
        }
        waiting.expect_nothing();
    }
    EXPECT_EQ(exchange(question()), answer());
}

TEST_P(SqldProcesses, that_die_are_told_with_signal_and_client) {
    const support::Service service({"--workers", "1", GetParam()});
    const support::SystemLog log;
    const Waiting waiting(1);
    ASSERT_TRUE(service.has_children(1));
    log.lines();
    kill(service.children().front(), SIGTERM);
    waiting.expect_nothing();
    std::vector<std::string> lines;
    EXPECT_TRUE(support::eventually([&] { return !(lines = log.lines()).empty(); }));
    EXPECT_EQ(lines, std::vector<std::string>{told("ended, signal 15 has ended its process")});
}

// The second one changes nothing.
INSTANTIATE_TEST_SUITE_P(, SqldProcesses, testing::Values("--fork", "--request-seconds=8"));

TEST(SqldWorkers, that_die_without_a_request_are_replaced_and_told) {
    const support::Service service({"--workers", "2"});
    const support::SystemLog log;
    ASSERT_TRUE(service.has_children(2));
    const std::vector<pid_t> workers = service.children();
    kill(workers.front(), SIGKILL);
    std::vector<std::string> lines;
    EXPECT_TRUE(support::eventually([&] { return !(lines = log.lines()).empty(); }));
    EXPECT_EQ(lines, std::vector<std::string>{"28 signal 9 has ended a worker"});
    EXPECT_TRUE(support::eventually([&] {
        const std::vector<pid_t> now = service.children();
        return now.size() == 2 && now != workers;
    }));
    EXPECT_EQ(exchange(question()), answer());
}

/// Inserts a row of that name.
std::string insertion(const std::string &name) {
    return request(5, 2, "insert into user_timegroup(name) values('" + name + "');");
}

TEST(SqldLoad, serves_those_who_ask_for_little_before_those_who_ask_for_much) {
    const support::Service service({"--workers", "1"});
    int lock = get_db_lock();
    std::list<Peer> peers(10);
    for (const Peer &peer : peers) {
        peer.send(insertion("one of many"));
    }
    support::Service::collect_all();
    {
        support::Process modest([] {
            const Peer peer;
            peer.send(insertion("the only one"));
            support::Service::collect_all();
            return true;
        });
        EXPECT_EQ(modest.wait(), 0);
    }
    free_db_lock(lock);
    for (const Peer &peer : peers) {
        EXPECT_EQ(peer.receive(), words({5, 2, 0}));
    }
    EXPECT_EQ(support::value("select id from user_timegroup where name='the only one';"), "2");
}

TEST(SqldLoad, has_at_most_32_processes_wait_for_clients_that_do_not_read) {
    support::execute(url_rows);
    const support::Service service({"--workers", "1"});
    std::list<Peer> peers(44);
    for (const Peer &peer : peers) {
        peer.send(url_list());
    }
    const auto dropped = [&] { return peers.front().hung_up() && std::next(peers.begin())->hung_up(); };
    std::size_t most = 0;
    EXPECT_TRUE(support::eventually([&] {
        most = std::max(most, service.children().size());
        return dropped();
    }));
    EXPECT_LT(most, 41U);  // with the worker, and those that are about to end
    EXPECT_EQ(exchange(question()), answer());
}

/// Whether a process has the main database open.
bool reads_the_database(pid_t process) {
    const auto leads_there = [](const std::filesystem::directory_entry &descriptor) {
        std::error_code gone;
        return std::filesystem::read_symlink(descriptor.path(), gone) == support::main_database;
    };
    const std::filesystem::directory_iterator descriptors("/proc/" + std::to_string(process) + "/fd");
    return std::any_of(begin(descriptors), end(descriptors), leads_there);
}

TEST(SqldLoad, workers_keep_a_connection_for_lists_where_the_profile_does) {
    const support::Service service({"--workers", "1"});
    for (int times = 0; times < 5; ++times) {
        for (const char *const sql :
             {"select * from filter_url order by Id;", "select * from filter_url where id='7';"}) {
            EXPECT_EQ(support::exchange(support::request(2, 1, sql)), support::words({2, 1, 0}));
        }
    }
    EXPECT_EQ(reads_the_database(service.children().front()), support::build_profile.keeps_connection);
}

}  // namespace
