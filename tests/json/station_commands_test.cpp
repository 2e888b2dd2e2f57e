// What is run for the station list of an access point, in which order, and what stays behind.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/left_errno.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::build_profile;
using support::Recorder;
using Lines = std::vector<std::string>;

constexpr bool keeps_from_shell = build_profile.keeps_addresses_from_shell;
constexpr char refusal[] = "syslog 3 stations not listed: no IPv4 address\n";

/// The call that starts the program that asks.
std::string program(const std::string &address, const std::string &file) {
    return keeps_from_shell ? "spawn capwapmanage -c -a" + address
                            : "system capwapmanage -c -a" + address + " >" + file;
}

void print(const std::string &address) {
    printed::by([&address] { GetApDevStaList(address.c_str()); });
}

TEST(StationCommands, run_in_order_with_a_wait_before_the_last) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    recorder.answer("draw", {0});
    print("192.168.1.20");
    EXPECT_EQ(recorder.calls(), (Lines{
                                    "system echo line=9643---- >/tmp/sta_log",
                                    "draw",
                                    "system echo line=9648--n=1--devip=192.168.1.20-- >/tmp/sta_log",
                                    program("192.168.1.20", "/var/stalist_1"),
                                    "sync",
                                    "usleep 100000",
                                    "system cat /var/stalist_1 >/tmp/sta_log",
                                }));
}

TEST(StationCommands, write_to_one_of_ten_files) {
    const struct {
        int random;
        const char *file;
    } draws[] = {
        {0, "/var/stalist_1"},           {214748364, "/var/stalist_1"},  {214748365, "/var/stalist_2"},
        {429496729, "/var/stalist_2"},   {429496730, "/var/stalist_3"},  {1073741823, "/var/stalist_5"},
        {1073741824, "/var/stalist_6"},  {1932735283, "/var/stalist_9"}, {1932735284, "/var/stalist_10"},
        {2147483647, "/var/stalist_10"},
    };
    for (const auto &draw : draws) {
        Recorder recorder;
        recorder.keep_commands_from_running();
        recorder.answer("draw", {draw.random});
        print("10.0.0.1");
        const Lines commands = recorder.calls({"system", "spawn"});
        ASSERT_EQ(commands.size(), 4U);
        EXPECT_EQ(commands[2], program("10.0.0.1", draw.file));
        EXPECT_EQ(commands[3], "system cat " + std::string(draw.file) + " >/tmp/sta_log");
    }
}

TEST(StationCommands, leave_the_file_and_the_trace_with_the_answer) {
    ASSERT_EQ(mkdir("/var/stations", 0755), 0);
    support::write_file("/var/stations/10.0.0.1", "m+t+-5\nnot a station\n");
    Recorder recorder;
    recorder.answer("draw", {1073741824});
    print("10.0.0.1");
    EXPECT_EQ(support::file_content("/var/stalist_6"), "m+t+-5\nnot a station\n");
    EXPECT_EQ(support::file_content("/tmp/sta_log"), "m+t+-5\nnot a station\n");
    EXPECT_EQ(support::file_content("/var/calls"), "capwapmanage -c -a10.0.0.1\n");
}

TEST(StationCommands, trace_each_step_in_a_file_of_its_own_content) {
    Recorder recorder;
    recorder.answer("draw", {0});
    Lines traces;
    recorder.watch([&traces](const std::string &line) {
        if (line == "draw" || line == "usleep 100000") {
            traces.push_back(support::file_content("/tmp/sta_log"));
        }
    });
    print("10.0.0.1");
    EXPECT_EQ(traces, (Lines{"line=9643----\n", "line=9648--n=1--devip=10.0.0.1--\n"}));
}

TEST(StationCommands, overwrite_a_file_of_the_same_number) {
    support::write_file("/var/stalist_1", "old+old+-1\nold+old+-2\n");
    Recorder recorder;
    recorder.answer("draw", {0});
    print("10.0.0.1");
    EXPECT_EQ(support::file_content("/var/stalist_1"), "");
}

TEST(StationCommands, take_the_address_as_given_or_refuse_it) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    recorder.answer("draw", {0, 0});
    print("$(id) ; 'x'");
    printed::by([] { GetApDevStaList(nullptr); });
    EXPECT_EQ(recorder.calls({"system echo line=9648", "system capwapmanage", "spawn", "syslog"}),
              keeps_from_shell ? Lines(2, refusal)
                               : (Lines{"system echo line=9648--n=1--devip=$(id) ; 'x'-- >/tmp/sta_log",
                                        "system capwapmanage -c -a$(id) ; 'x' >/var/stalist_1",
                                        "system echo line=9648--n=1--devip=-- >/tmp/sta_log",
                                        "system capwapmanage -c -a >/var/stalist_1"}));
}

TEST(StationCommands, of_an_address_with_a_command_behind_it_run_that_in_one_profile_only) {
    print("1.1.1.1;touch /bin/x");
    EXPECT_EQ(access("/bin/x", F_OK) == 0, !keeps_from_shell);
}

TEST(StationCommands, for_anything_but_an_ipv4_address_are_not_run) {
    if (!keeps_from_shell) {
        return;
    }
    for (const char *address : {"", " 10.0.0.1", "10.0.0.1 ", "10.0.0.1;", "10.0.0.1\n", "10.0.0", "10.0.0.1.1",
                                "10.0.0.256", "10.0.0.-1", "0x0a.0.0.1", "10.0.0.1/24", "::1", "::ffff:10.0.0.1", "-a",
                                "../../etc/passwd", "10.1", "167772161", "router.lan"}) {
        Recorder recorder;
        printed::expect_complete(printed::by([address] { GetApDevStaList(address); }),
                                 "{\"DevStalist\":\n{\"count\":\"0\"}}");
        support::expect_errno(EINVAL, [address] { GetApDevStaList(address); });
        EXPECT_EQ(recorder.calls(), Lines(2, refusal)) << address;
    }
}

TEST(StationCommands, that_cannot_be_started_are_told_in_errno) {
    ASSERT_EQ(mkdir("/var/stations", 0755), 0);
    support::write_file("/var/stations/10.0.0.1", "m+t+99999999999999999999\n");
    support::expect_errno(support::found_errno, [] { GetApDevStaList("10.0.0.1"); });
    ASSERT_EQ(setenv("PATH", "/nowhere", 1), 0);
    support::expect_errno(ENOENT, [] { GetApDevStaList("10.0.0.1"); });
}

TEST(StationCommands, whose_file_cannot_be_made_are_told_in_errno) {
    Recorder recorder;
    recorder.answer("draw", {0});
    ASSERT_EQ(mkdir("/var/stalist_1", 0755), 0);
    support::expect_errno(EEXIST, [] { GetApDevStaList("10.0.0.1"); });
}

TEST(StationCommands, for_every_ipv4_address_are_run) {
    for (const char *address : {"0.0.0.0", "10.0.0.1", "192.168.100.200", "255.255.255.255"}) {
        Recorder recorder;
        recorder.keep_commands_from_running();
        recorder.answer("draw", {0});
        print(address);
        EXPECT_EQ(recorder.calls({"spawn", "system cap"}), Lines{program(address, "/var/stalist_1")});
        EXPECT_EQ(recorder.calls({"syslog"}), Lines{});
    }
}

/// The commands that are run for an address of a length, and the first number.
Lines commands_for(std::size_t length) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    recorder.answer("draw", {0});
    print(std::string(length, '1'));
    return recorder.calls({"system"});
}

TEST(StationCommands, that_do_not_fit_their_buffer_are_not_run) {
    if (keeps_from_shell) {  // every IPv4 address fits
        return;
    }
    const std::string start = "system echo line=9643---- >/tmp/sta_log";
    const std::string end = "system cat /var/stalist_1 >/tmp/sta_log";
    const auto trace = [](std::size_t length) {
        return "system echo line=9648--n=1--devip=" + std::string(length, '1') + "-- >/tmp/sta_log";
    };
    const auto asking = [](std::size_t length) { return program(std::string(length, '1'), "/var/stalist_1"); };
    ASSERT_EQ(trace(84).size(), sizeof("system") + 127);
    EXPECT_EQ(commands_for(84), (Lines{start, trace(84), asking(84), end}));
    EXPECT_EQ(commands_for(85), (Lines{start, asking(85), end}));
    ASSERT_EQ(asking(220).size(), sizeof("system") + 254);
    EXPECT_EQ(commands_for(220), (Lines{start, asking(220), end}));
    EXPECT_EQ(commands_for(221), (Lines{start, end}));
    EXPECT_EQ(commands_for(5000), (Lines{start, end}));
}

/// What happens to the result file when something else stands in its place.
class StationFile : public testing::Test {
protected:
    StationFile() {
        mkdir("/var/stations", 0755);
        support::write_file("/var/stations/10.0.0.1", "m+t+-5\n");
        support::write_file("/var/precious", "precious\n");
    }

    static std::string print_into_first() {
        Recorder recorder;
        recorder.answer("draw", {0});
        return printed::by([] { GetApDevStaList("10.0.0.1"); });
    }

    static void expect_written_anew() {
        struct stat file {};
        EXPECT_EQ(support::file_content("/var/precious") == "precious\n", keeps_from_shell);
        EXPECT_EQ(support::file_content("/var/stalist_1"), "m+t+-5\n");
        ASSERT_EQ(lstat("/var/stalist_1", &file), 0);
        EXPECT_EQ(S_ISREG(file.st_mode) && file.st_nlink == 1, keeps_from_shell);
    }
};

TEST_F(StationFile, takes_the_place_of_a_symbolic_link_where_a_shell_follows_it) {
    ASSERT_EQ(symlink("/var/precious", "/var/stalist_1"), 0);
    EXPECT_TRUE(printed::is_json(print_into_first()));
    expect_written_anew();
}

TEST_F(StationFile, takes_the_place_of_a_hard_link_where_a_shell_follows_it) {
    ASSERT_EQ(link("/var/precious", "/var/stalist_1"), 0);
    EXPECT_TRUE(printed::is_json(print_into_first()));
    expect_written_anew();
}

TEST_F(StationFile, is_the_callers_alone_in_the_profile_that_makes_it_itself) {
    support::write_file("/var/stalist_1", "old+old+-1\n");
    ASSERT_EQ(chmod("/var/stalist_1", 0666), 0);
    print_into_first();
    struct stat file {};
    ASSERT_EQ(stat("/var/stalist_1", &file), 0);
    EXPECT_EQ(file.st_mode & 0777U, keeps_from_shell ? 0600U : 0666U);
}

TEST_F(StationFile, is_read_through_the_descriptor_that_it_was_made_with) {
    Recorder recorder;
    recorder.answer("draw", {0});
    recorder.watch([](const std::string &line) {
        if (line == "sync") {  // another one has been put in its place
            unlink("/var/stalist_1");
            support::write_file("/var/stalist_1", "n+u+-6\n");
        }
    });
    const std::string text = printed::by([] { GetApDevStaList("10.0.0.1"); });
    EXPECT_NE(text.find(keeps_from_shell ? R"({"mac":"m","time":"t","signal":"-5"},)"
                                         : R"({"mac":"n","time":"u","signal":"-6"},)"),
              std::string::npos)
        << text;
}

TEST_F(StationFile, that_cannot_be_made_leaves_the_short_list) {
    ASSERT_EQ(mkdir("/var/stalist_1", 0755), 0);
    Recorder recorder;
    recorder.answer("draw", {0});
    const auto said = support::streams_of([] { GetApDevStaList("10.0.0.1"); });  // a shell and cat complain on one
    EXPECT_EQ(said.output, keeps_from_shell
                               ? "{\"DevStalist\":\n{\"count\":\"0\"}}"
                               : "{\"DevStalist\":\n{\"sta\":[{\"mac\":\"\",\"time\":\"\",\"signal\":\"\"}]"
                                 ",\"count\":\"0\"}}\n");
    EXPECT_EQ(recorder.calls({"spawn"}), Lines{});
}

}  // namespace
