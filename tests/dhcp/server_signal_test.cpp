// The DHCP server writes its leases when it is asked to, and is read afterwards.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <functional>

#include "dhcp/leases.h"
#include "support/database.h"
#include "support/gate.h"
#include "support/named.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"
#include "support/without_standard_input.h"

namespace {

using support::build_profile;
using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char text_line[] = "1700000000 AA:BB:CC:DD:EE:0F 192.168.1.2 phone\n";

/// A way to read leases, the file that it reads, and what the server writes there.
struct Reader : support::Named {
    const char *file;
    std::string content;
    std::string (*read)();  // with the pid file of the server
};

std::string read_host_name() {
    char host[128] = "unknown";
    get_hostname_by_mac_from_lease("AA:BB:CC:DD:EE:0F", host, leases::text_file, leases::pid_file);
    return host;
}

std::string read_router_host_name() {
    char host[128] = "unknown";
    get_hostname_by_mac("AA:BB:CC:DD:EE:0F", host, 0);
    return host;
}

std::string read_list() {
    LeaseNode *head = nullptr;
    const int count = get_addrserver_leases_sql(&head, leases::binary_file, leases::pid_file);
    const std::string host = count > 0 ? head->hostname : "unknown";
    free_leaselist_sql(&head);
    return host;
}

class ServerSignal : public testing::TestWithParam<Reader> {};

/// Waits for the signal, then writes the lease file as a whole.
bool serve(const support::Gate &ready, const Reader &reader) {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGUSR1);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    ready.open();
    const timespec limit{10, 0};
    if (sigtimedwait(&signals, nullptr, &limit) != SIGUSR1) {
        return false;
    }
    const std::string unfinished = std::string(reader.file) + ".new";
    support::write_file(unfinished, reader.content);
    return rename(unfinished.c_str(), reader.file) == 0;
}

TEST_P(ServerSignal, makes_the_server_write_before_the_file_is_read) {
    const support::Gate ready;
    support::Process server([&ready] { return serve(ready, GetParam()); });
    ready.wait();
    support::write_file(leases::pid_file, std::to_string(server.id()) + "\n");
    support::write_file(GetParam().file, "");

    Recorder recorder;
    bool written = false;
    recorder.watch([&](const std::string &line) {
        if (line == "usleep 1000") {  // as if the server were quick enough
            written = server.wait() == 0;
        }
    });
    const std::string kill = "kill " + std::to_string(server.id()) + " 10";
    EXPECT_EQ(GetParam().read(), "phone");
    EXPECT_TRUE(written);
    EXPECT_EQ(recorder.calls(), (Lines{kill, "usleep 1000"}));
}

TEST_P(ServerSignal, is_not_sent_by_a_pid_file_without_a_process) {
    support::write_file(GetParam().file, GetParam().content);
    for (const char *content : {"0\n", "-1\n", "-2147483648\n", "", "dnsmasq\n"}) {
        support::write_file(leases::pid_file, content);
        Recorder recorder;
        EXPECT_EQ(GetParam().read(), "phone");
        EXPECT_EQ(recorder.calls(), Lines{"usleep 1000"}) << content;
    }
    ASSERT_EQ(unlink(leases::pid_file), 0);
    Recorder recorder;
    EXPECT_EQ(GetParam().read(), "phone");
    EXPECT_EQ(recorder.calls(), Lines{"usleep 1000"});
}

TEST_P(ServerSignal, to_a_process_that_has_ended_changes_nothing) {
    support::write_file(GetParam().file, GetParam().content);
    support::Process server([] { return true; });
    const std::string id = std::to_string(server.id());
    ASSERT_EQ(server.wait(), 0);
    support::write_file(leases::pid_file, id + "\n");
    Recorder recorder;
    const auto said = support::streams_of([] { EXPECT_EQ(GetParam().read(), "phone"); });
    EXPECT_EQ(recorder.calls(), (Lines{"kill " + id + " 10", "usleep 1000"}));
    EXPECT_EQ(said.output + said.error, "");
}

/// What is sent for the pid file as it is now.
Lines signals_sent(const Reader &reader) {
    support::write_file(reader.file, reader.content);
    Recorder recorder;
    EXPECT_EQ(reader.read(), "phone");
    return recorder.calls({"kill"});
}

TEST_P(ServerSignal, is_sent_by_a_file_that_others_may_write_in_one_profile_only) {
    support::Process server([] { return pause() == 0; });  // which the signal ends
    const Lines signal{"kill " + std::to_string(server.id()) + " 10"};
    support::write_file(leases::pid_file, std::to_string(server.id()) + "\n");
    for (const mode_t mode : {0666U, 0664U, 0646U, 0620U, 0602U}) {
        ASSERT_EQ(chmod(leases::pid_file, mode), 0);
        EXPECT_EQ(signals_sent(GetParam()), build_profile.checks_pid_file ? Lines{} : signal) << mode;
    }
    for (const mode_t mode : {0644U, 0600U, 0444U, 0755U}) {
        ASSERT_EQ(chmod(leases::pid_file, mode), 0);
        EXPECT_EQ(signals_sent(GetParam()), signal) << mode;
    }
    server.wait();
}

// Its files have the descriptor that is free then.
TEST_P(ServerSignal, is_sent_by_a_program_without_standard_input) {
    const support::Process server([] { return pause() == 0; });
    support::write_file(leases::pid_file, std::to_string(server.id()) + "\n");
    const support::WithoutStandardInput closed;
    EXPECT_EQ(signals_sent(GetParam()), Lines{"kill " + std::to_string(server.id()) + " 10"});
}

TEST_P(ServerSignal, is_not_waited_for_behind_a_pipe_nor_sent_to_whom_it_names) {
    if (build_profile.checks_pid_file) {  // the other one waits for a writer
        ASSERT_EQ(mkfifo(leases::pid_file, 0600), 0);
        EXPECT_EQ(signals_sent(GetParam()), Lines{});
        const support::Process server([] { return pause() == 0; });
        std::fstream writer(leases::pid_file);  // which reads, too, and so need not wait
        writer << server.id() << std::endl;
        EXPECT_EQ(signals_sent(GetParam()), Lines{});
    }
}

TEST_P(ServerSignal, leaves_no_descriptor_of_a_pid_file_open) {
    support::write_file(GetParam().file, GetParam().content);
    for (const char *content : {"0\n", ""}) {
        support::write_file(leases::pid_file, content);
        for (const mode_t mode : {0644U, 0666U}) {
            ASSERT_EQ(chmod(leases::pid_file, mode), 0);
            const int descriptors = support::open_descriptors();
            EXPECT_EQ(GetParam().read(), "phone");
            const bool leaves_stream = GetParam().name != "List" && !build_profile.closes_its_own;
            EXPECT_EQ(support::open_descriptors(), descriptors + (leaves_stream ? 1 : 0));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, ServerSignal,
    testing::Values(Reader{"HostName", leases::text_file, text_line, read_host_name},
                    Reader{"RouterHostName", "/var/dhcp.leases", text_line, read_router_host_name},
                    Reader{"List", leases::binary_file,
                           leases::header + leases::record(10, leases::some_ip, leases::some_mac, "phone"), read_list}),
    [](const auto &test) { return test.param.name; });

}  // namespace
