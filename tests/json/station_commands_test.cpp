// What is run for the station list of an access point, in which order, and what stays behind.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/recorder.h"

namespace {

using support::Recorder;
using Lines = std::vector<std::string>;

void print(const std::string &address) {
    printed::by([&address] { GetApDevStaList(address.c_str()); });
}

TEST(StationCommands, run_in_order_with_a_wait_before_the_last) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    recorder.answer("rand", {0});
    print("192.168.1.20");
    EXPECT_EQ(recorder.calls(), (Lines{
                                    "system echo line=9643---- >/tmp/sta_log",
                                    "gettimeofday",
                                    "srand",
                                    "rand",
                                    "system echo line=9648--n=1--devip=192.168.1.20-- >/tmp/sta_log",
                                    "system capwapmanage -c -a192.168.1.20 >/var/stalist_1",
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
        recorder.answer("rand", {draw.random});
        print("10.0.0.1");
        const Lines commands = recorder.calls({"system"});
        ASSERT_EQ(commands.size(), 4U);
        EXPECT_EQ(commands[2], "system capwapmanage -c -a10.0.0.1 >" + std::string(draw.file));
        EXPECT_EQ(commands[3], "system cat " + std::string(draw.file) + " >/tmp/sta_log");
    }
}

TEST(StationCommands, leave_the_file_and_the_trace_with_the_answer) {
    ASSERT_EQ(mkdir("/var/stations", 0755), 0);
    support::write_file("/var/stations/10.0.0.1", "m+t+-5\nnot a station\n");
    Recorder recorder;
    recorder.answer("rand", {1073741824});
    print("10.0.0.1");
    EXPECT_EQ(support::file_content("/var/stalist_6"), "m+t+-5\nnot a station\n");
    EXPECT_EQ(support::file_content("/tmp/sta_log"), "m+t+-5\nnot a station\n");
    EXPECT_EQ(support::file_content("/var/calls"), "capwapmanage -c -a10.0.0.1\n");
}

TEST(StationCommands, trace_each_step_in_a_file_of_its_own_content) {
    Recorder recorder;
    recorder.answer("rand", {0});
    Lines traces;
    recorder.watch([&traces](const std::string &line) {
        if (line == "gettimeofday" || line == "usleep 100000") {
            traces.push_back(support::file_content("/tmp/sta_log"));
        }
    });
    print("10.0.0.1");
    EXPECT_EQ(traces, (Lines{"line=9643----\n", "line=9648--n=1--devip=10.0.0.1--\n"}));
}

TEST(StationCommands, overwrite_a_file_of_the_same_number) {
    support::write_file("/var/stalist_1", "old+old+-1\nold+old+-2\n");
    Recorder recorder;
    recorder.answer("rand", {0});
    print("10.0.0.1");
    EXPECT_EQ(support::file_content("/var/stalist_1"), "");
}

TEST(StationCommands, take_the_address_as_given) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    recorder.answer("rand", {0, 0});
    print("$(id) ; 'x'");
    printed::by([] { GetApDevStaList(nullptr); });
    EXPECT_EQ(
        recorder.calls({"system echo line=9648", "system capwapmanage"}),
        (Lines{"system echo line=9648--n=1--devip=$(id) ; 'x'-- >/tmp/sta_log",
               "system capwapmanage -c -a$(id) ; 'x' >/var/stalist_1",
               "system echo line=9648--n=1--devip=-- >/tmp/sta_log", "system capwapmanage -c -a >/var/stalist_1"}));
}

/// The commands that are run for an address of a length, and the first number.
Lines commands_for(std::size_t length) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    recorder.answer("rand", {0});
    print(std::string(length, '1'));
    return recorder.calls({"system"});
}

TEST(StationCommands, that_do_not_fit_their_buffer_are_not_run) {
    const std::string start = "system echo line=9643---- >/tmp/sta_log";
    const std::string end = "system cat /var/stalist_1 >/tmp/sta_log";
    const auto trace = [](std::size_t length) {
        return "system echo line=9648--n=1--devip=" + std::string(length, '1') + "-- >/tmp/sta_log";
    };
    const auto program = [](std::size_t length) {
        return "system capwapmanage -c -a" + std::string(length, '1') + " >/var/stalist_1";
    };
    ASSERT_EQ(trace(84).size(), sizeof("system") + 127);
    EXPECT_EQ(commands_for(84), (Lines{start, trace(84), program(84), end}));
    EXPECT_EQ(commands_for(85), (Lines{start, program(85), end}));
    ASSERT_EQ(program(220).size(), sizeof("system") + 254);
    EXPECT_EQ(commands_for(220), (Lines{start, program(220), end}));
    EXPECT_EQ(commands_for(221), (Lines{start, end}));
    EXPECT_EQ(commands_for(5000), (Lines{start, end}));
}

}  // namespace
