// The service as a process: its socket, its start and its end.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "support/database.h"
#include "support/fake_service.h"
#include "support/peer.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/service.h"
#include "support/streams.h"
#include "support/system_log.h"

namespace {

using support::exchange;
using support::Peer;
using support::Process;
using support::request;
using support::service_socket;
using support::SystemLog;
using support::words;

using Lines = std::vector<std::string>;

bool serves() {
    return exchange(request(5, 1, "select * from user_timegroup;")) == words({5, 1, 0});
}

mode_t mode_of_socket() {
    struct stat status {};
    stat(service_socket, &status);
    return status.st_mode;
}

struct Outcome {
    int status;
    std::string output;
    std::string error;
};

/// Runs the program to its end.
Outcome run(const std::vector<std::string> &arguments = {}) {
    Outcome outcome{};
    const auto streams = support::streams_of([&] {
        Process process([&] { return support::become(support::sqld(arguments)); });
        outcome.status = process.wait();
    });
    outcome.output = streams.output;
    outcome.error = streams.error;
    return outcome;
}

TEST(SqldSocket, is_open_to_owner_and_group_whatever_the_umask) {
    for (const mode_t mask : {0U, 0077U, 0777U}) {
        umask(mask);
        const support::Service service;
        EXPECT_EQ(mode_of_socket(), mode_t{S_IFSOCK | 0660});
    }
}

// Where there is no other group than that of all files, that it is given away does not show.
TEST(SqldSocket, is_served_when_a_group_is_named) {
    const support::Service service({"--group", "root"});
    EXPECT_TRUE(serves());
}

TEST(SqldSocket, left_by_a_killed_service_is_replaced) {
    {
        support::Service service;
        service.signal(SIGKILL);
        EXPECT_EQ(service.wait(), 128 + SIGKILL);
    }
    EXPECT_TRUE(support::file_exists(service_socket));
    const support::Service service;
    EXPECT_TRUE(serves());
}

// Of a service that was killed a worker may live on for a moment.
TEST(SqldSocket, whose_lock_is_released_in_a_moment_is_waited_for) {
    const int lock = open("/var/sqlserver_socket.lock", O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    const Process release([lock] {
        usleep(300'000);
        return flock(lock, LOCK_UN) == 0;
    });
    close(lock);
    const support::Service service;
    EXPECT_TRUE(serves());
}

TEST(SqldSocket, that_is_served_keeps_a_second_service_from_starting) {
    const support::Service first;
    const SystemLog log;
    const Outcome second = run();
    EXPECT_EQ(second.status, 1);
    EXPECT_EQ(second.error, "routerdb-sqld: cannot listen, see the system log\n");
    EXPECT_EQ(second.output, "");
    const Lines lines = log.lines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), std::string("27 ") + service_socket + " is served already"), 1);
    EXPECT_TRUE(serves());
}

TEST(SqldSocket, that_cannot_be_made_keeps_the_service_from_starting) {
    mkdir(service_socket, 0755);
    const SystemLog log;
    const Outcome service = run();
    EXPECT_EQ(service.status, 1);
    EXPECT_EQ(service.error, "routerdb-sqld: cannot listen, see the system log\n");
    EXPECT_EQ(log.lines(), Lines{std::string("27 cannot listen on ") + service_socket + ": Is a directory"});
    EXPECT_FALSE(support::file_exists("/var/sqlserver_socket.new"));
}

class SqldStop : public testing::TestWithParam<int> {};

TEST_P(SqldStop, removes_the_socket_and_ends_well) {
    const SystemLog log;
    support::Service service;
    service.signal(GetParam());
    EXPECT_EQ(service.wait(), 0);
    EXPECT_FALSE(support::file_exists(service_socket));
    EXPECT_FALSE(support::file_exists("/var/sqlserver_socket.lock"));
    EXPECT_FALSE(Peer().connected());
    EXPECT_EQ(log.lines(), (Lines{"30 started", support::told("refused, its header breaks off"), "30 stopped"}));
}

TEST_P(SqldStop, ends_well_as_soon_as_it_listens) {
    const SystemLog log;
    SystemLog::fill();  // so that it comes no further
    Process service([] { return support::become(support::sqld()); });
    ASSERT_TRUE(support::eventually([] { return Peer().connected(); }));
    kill(service.id(), GetParam());
    log.lines();
    EXPECT_EQ(service.wait(), 0);
    EXPECT_FALSE(support::file_exists(service_socket));
}

TEST_P(SqldStop, finishes_a_request_under_way_and_takes_no_other) {
    support::execute("insert into user_timegroup(name) values('group');");
    support::Service service;
    const std::string whole = request(5, 2, "delete from user_timegroup;");
    const Peer peer;
    peer.send(whole.substr(0, 20));
    support::Service::collect_all();
    service.signal(GetParam());
    ASSERT_TRUE(support::eventually([] { return !support::file_exists(service_socket); }));
    EXPECT_FALSE(Peer().connected());
    usleep(100'000);
    EXPECT_FALSE(peer.hung_up()) << "it waits for the request";
    peer.send(whole.substr(20));
    EXPECT_EQ(peer.receive(), words({5, 2, 0}));
    EXPECT_EQ(service.wait(), 0);
    EXPECT_EQ(support::value("select count(*) from user_timegroup"), "0");
}

INSTANTIATE_TEST_SUITE_P(, SqldStop, testing::Values(SIGTERM, SIGINT));

TEST(SqldOptions, explain_themselves) {
    const Outcome help = run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.output,
              "usage: routerdb-sqld [OPTION]...\n"
              "       routerdb-sqld --help | --version\n"
              "Answers the rule-table requests of librouterdb until SIGTERM.\n"
              "Messages go to the system log, and on SIGUSR1 what it has done so far.\n"
              "  --allow-schema       execute statements that change the schema, too\n"
              "  --group NAME         whose programs may connect, beside those of the owner\n"
              "  --user NAME          give up the rights of root when the socket is there\n"
              "  --workers N          processes that serve; as many as processors by default,\n"
              "                       but no more than 4\n"
              "  --fork               start a process for each request instead\n"
              "  --request-seconds N  end a request that takes longer; 8 by default\n"
              "  --memory MiB         of a process that serves; 64 by default\n"
              "  --rows N             refuse lists of more; 128 by default, and at least\n");
}

constexpr const char *own_profile = support::build_profile.spares ? "modern" : "exact";
constexpr const char *other_profile = support::build_profile.spares ? "exact" : "modern";

std::string versions(const std::string &profile) {
    return "routerdb-sqld " ROUTERDB_VERSION "\nlibrouterdb " + profile + " " ROUTERDB_VERSION "\n";
}

TEST(SqldVersion, says_which_library_it_runs_with) {
    const Outcome version = run({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output, versions(own_profile));
    EXPECT_EQ(version.error, "");
}

TEST(SqldVersion, is_not_that_of_the_library_it_was_built_with) {
    ASSERT_EQ(symlink(OTHER_LIBRARY, "/tmp/" LIBRARY_NAME), 0);
    const char *const directories = std::getenv("LD_LIBRARY_PATH");
    setenv("LD_LIBRARY_PATH", directories != nullptr ? ("/tmp:" + std::string(directories)).c_str() : "/tmp", 1);
    EXPECT_EQ(run({"--version"}).output, versions(other_profile));
}

TEST(SqldOptions, whose_answer_cannot_be_printed_fail) {
    for (const char *option : {"--version", "--help"}) {
        Process process([option] {
            return std::freopen("/dev/full", "w", stdout) != nullptr && support::become(support::sqld({option}));
        });
        EXPECT_EQ(process.wait(), 1) << option;
    }
}

TEST(SqldOptions, that_nobody_knows_are_refused) {
    for (const std::vector<std::string> &arguments : {std::vector<std::string>{"--frob"},
                                                      {"/var/other_socket"},
                                                      {"--help", "--version"},
                                                      {"--request-seconds"},
                                                      {"--request-seconds", "0"},
                                                      {"--request-seconds", "1s"},
                                                      {"--request-seconds", "-1"},
                                                      {"--request-seconds", "3601"},
                                                      {"--workers", "0"},
                                                      {"--workers", "33"},
                                                      {"--memory", "15"},
                                                      {"--memory", "2049"},
                                                      {"--rows", "127"},
                                                      {"--rows", "100001"}}) {
        const Outcome service = run(arguments);
        EXPECT_EQ(service.status, 2);
        EXPECT_EQ(service.output, "");
        EXPECT_EQ(service.error.substr(0, 34), "usage: routerdb-sqld [OPTION]...\n ");
        EXPECT_FALSE(support::file_exists(service_socket));
    }
}

TEST(SqldOptions, name_users_and_groups_that_there_are) {
    const Outcome group = run({"--group", "nowhere"});
    EXPECT_EQ(group.status, 2);
    EXPECT_EQ(group.error.substr(0, 47), "routerdb-sqld: there is no group nowhere\nusage:");
    const Outcome user = run({"--user", "nowhere"});
    EXPECT_EQ(user.status, 2);
    EXPECT_EQ(user.error.substr(0, 46), "routerdb-sqld: there is no user nowhere\nusage:");
}

// Where nobody may become somebody else.
TEST(SqldOptions, to_give_up_rights_keep_the_service_from_starting_with_them) {
    const SystemLog log;
    const Outcome service = run({"--user", "root"});
    EXPECT_EQ(service.status, 1);
    EXPECT_EQ(log.lines(), Lines{"27 cannot become user root: Operation not permitted"});
    EXPECT_FALSE(support::file_exists(service_socket));
}

}  // namespace
