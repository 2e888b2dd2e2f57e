// Who holds the lock file.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <regex>

#include "doctor.h"
#include "holder.h"
#include "run.h"
#include "support/database.h"

namespace {

using support::Holder;
using support::lock_file;
using support::LockKind;
using support::Result;
using support::run;
using support::Visible;

std::string without_times(const std::string &text) {
    return std::regex_replace(text, std::regex("[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}"), "TIME");
}

void expect(const Result &result, int status, const std::string &output, const std::string &error) {
    EXPECT_EQ(result.status, status);
    EXPECT_EQ(without_times(result.output), output);
    EXPECT_EQ(result.error, error);
}

TEST(Lock, that_nobody_holds) {
    expect(run({"lock"}), 0, "nobody holds /var/databaselock\n", "");
    expect(run({"-o", "json", "lock"}), 0, "[]\n", "");
    expect(run({"-o", "jsonl", "lock"}), 0, "", "");
    expect(run({"-o", "tsv", "lock"}), 0, "process\tuser\tprocess_started\tkind\tcommand\n", "");
}

TEST(Lock, of_a_process) {
    const Holder holder(LockKind::of_process);
    const std::string id = std::to_string(holder.id());
    expect(run({"--no-header", "-o", "tsv", "lock"}), 1,
           id + "\t" + support::own_user() + "\tTIME\tlock of the process\tsleep 1000\n", "");
}

TEST(Lock, of_an_open_file) {
    const Holder holder(LockKind::of_open_file);
    const std::string id = std::to_string(holder.id());
    const std::string user = support::own_user();
    expect(run({"--no-header", "lock"}), 1, id + "  " + user + "  TIME  lock of an open file  sleep 1000\n", "");
    expect(run({"-o", "json", "lock"}), 1,
           "[\n  {\"process\":" + id + ",\"user\":\"" + user +
               "\",\"process_started\":\"TIME\",\"kind\":\"lock of an open file\",\"command\":\"sleep 1000\"}\n]\n",
           "");
    expect(run({"-o", "jsonl", "lock"}), 1,
           "{\"process\":" + id + ",\"user\":\"" + user +
               "\",\"process_started\":\"TIME\",\"kind\":\"lock of an open file\",\"command\":\"sleep 1000\"}\n",
           "");
}

TEST(Lock, has_a_header_over_its_table) {
    const Holder holder(LockKind::of_open_file);
    const std::vector<std::string> lines = support::lines_of(run({"lock"}).output);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_TRUE(
        std::regex_match(lines[0], std::regex("process  user +process_started      kind                  command")))
        << lines[0];
}

TEST(Lock, is_held_by_a_process_that_was_started_then) {
    const std::time_t before = std::time(nullptr);
    const Holder holder(LockKind::of_process);
    const std::time_t after = std::time(nullptr);
    const std::string row = run({"--no-header", "-o", "tsv", "lock"}).output;
    std::smatch found;
    ASSERT_TRUE(std::regex_search(row, found, std::regex("\t([0-9-]+ [0-9:]+)\t")));
    std::tm time{};
    time.tm_isdst = -1;
    ASSERT_NE(strptime(found.str(1).c_str(), "%Y-%m-%d %H:%M:%S", &time), nullptr);
    // The kernel counts from the start of the machine, whose second began somewhere between.
    EXPECT_GE(std::mktime(&time), before - 2);
    EXPECT_LE(std::mktime(&time), after + 2);
}

TEST(Lock, of_a_process_is_known_though_nothing_else_of_it_is) {
    const Holder holder(LockKind::of_process, Visible::no);
    const std::vector<std::string> lines = support::lines_of(run({"--no-header", "-o", "tsv", "lock"}).output);
    ASSERT_EQ(lines.size(), 1U);
    const std::string start =
        std::to_string(holder.id()) + "\t" + support::own_user() + "\tTIME\tlock of the process\t";
    EXPECT_EQ(without_times(lines[0]).substr(0, start.size()), start);
}

TEST(Lock, of_a_file_that_nobody_may_see_says_who_may) {
    const Holder holder(LockKind::of_open_file, Visible::no);
    const std::string error = "routerdbctl: /var/databaselock is held, by whom only root can see\n";
    expect(run({"lock"}), 1, "", error);
    expect(run({"-o", "json", "lock"}), 1, "[]\n", error);
}

TEST(Lock, on_another_file_is_no_matter) {
    support::write_file("/var/other", "");
    ASSERT_EQ(rename(lock_file, "/var/before"), 0);
    ASSERT_EQ(rename("/var/other", lock_file), 0);
    const Holder holder(LockKind::of_open_file);
    ASSERT_EQ(rename(lock_file, "/var/other"), 0);
    ASSERT_EQ(rename("/var/before", lock_file), 0);
    expect(run({"lock"}), 0, "nobody holds /var/databaselock\n", "");
    const Holder second(LockKind::of_open_file);
    expect(run({"--no-header", "-o", "tsv", "lock"}), 1,
           std::to_string(second.id()) + "\t" + support::own_user() + "\tTIME\tlock of an open file\tsleep 1000\n", "");
}

TEST(Lock, without_its_file) {
    unlink(lock_file);
    expect(run({"lock"}), 3, "",
           "routerdbctl: there is no lock file /var/databaselock, without which no program changes anything\n");
    EXPECT_FALSE(support::file_exists(lock_file));
}

TEST(Lock, whose_file_this_user_may_not_open) {
    chmod(lock_file, 0);
    expect(run({"lock"}), 4, "", "routerdbctl: cannot look at /var/databaselock: Permission denied\n");
}

TEST(Lock, whose_file_is_a_link_to_itself) {
    unlink(lock_file);
    ASSERT_EQ(symlink(lock_file, lock_file), 0);
    expect(run({"lock"}), 4, "", "routerdbctl: cannot look at /var/databaselock: Too many levels of symbolic links\n");
}

TEST(Lock, leaves_it_to_whoever_comes) {
    run({"lock"});
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST(Lock, takes_no_argument) {
    expect(run({"lock", "now"}), 2, "", "routerdbctl: usage: routerdbctl lock \n");
}

}  // namespace
