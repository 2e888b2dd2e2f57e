// Answers that come whole and in time, or say why not.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <memory>

#include "web/cgi.h"

namespace {

using web::answer;
using web::failure;
using web::post;

std::string unavailable(const char *error) {
    return failure("503 Service Unavailable", error);
}

TEST(CgiAnswer, says_that_a_database_is_away_and_makes_none) {
    std::filesystem::remove(support::main_database);
    std::filesystem::remove(support::catalogue_database);
    for (const char *program : {"access-points", "zero-config-groups", "catalogue", "url-filters"}) {
        EXPECT_EQ(answer(program, ""), unavailable("database: away")) << program;
    }
    EXPECT_FALSE(support::file_exists(support::main_database));
    EXPECT_FALSE(support::file_exists(support::catalogue_database));
}

TEST(CgiAnswer, says_that_a_database_is_away_when_only_its_empty_file_is_there) {
    support::write_file(support::main_database, "");
    EXPECT_EQ(answer("access-points", ""), unavailable("database: away"));
}

// Without it the groups look like none.
TEST(CgiAnswer, says_that_the_lock_file_is_away) {
    std::filesystem::remove(support::lock_file);
    EXPECT_EQ(answer("zero-config-groups", ""), unavailable("database: without its lock file"));
}

TEST(CgiAnswer, says_that_a_database_cannot_be_read) {
    support::execute("drop table DevInfo; drop table WlanZeroCfgGroupInfo;");
    for (const char *program : {"access-points", "zero-config-groups"}) {
        EXPECT_EQ(answer(program, ""), failure("500 Internal Server Error", "database: unreadable")) << program;
    }
    support::write_file(support::catalogue_database, "no database, but something");
    EXPECT_EQ(answer("catalogue", ""), failure("500 Internal Server Error", "database: unreadable"));
}

TEST(CgiAnswer, says_that_a_database_is_busy_instead_of_waiting_on) {
    const support::Database other;
    other.execute("begin exclusive;");
    EXPECT_EQ(answer("access-points", ""), unavailable("database: busy"));
}

/// Replaces the stand-in for the access points' program with one that notes its number and never ends.
void let_access_points_be_silent() {
    static constexpr char program[] = "/bin/capwapmanage";
    std::filesystem::remove(program);
    support::write_file(program, "#!/bin/sh\necho $$ >/tmp/silent\nexec sleep 1000\n");
    ASSERT_EQ(chmod(program, 0755), 0);
}

TEST(CgiAnswer, ends_what_it_has_started_when_an_access_point_does_not_answer) {
    let_access_points_be_silent();
    EXPECT_EQ(post("stations", "ap=10.0.0.1"), unavailable("access point: slow"));
    const pid_t silent = std::stoi(support::file_content("/tmp/silent"));
    EXPECT_TRUE(support::eventually([&] { return kill(silent, 0) != 0; })) << "the program is still there";
}

/// Locks bytes of a file until the end of its process.
bool take_seats(const char *path, off_t first, off_t count) {
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = first;
    lock.l_len = count;
    return fcntl(open(path, O_RDWR | O_CREAT, 0600), F_SETLK, &lock) == 0;
}

/// A process that holds the seats of so many requests for stations.
std::unique_ptr<support::Process> requests_under_way(off_t count) {
    auto requests = std::make_unique<support::Process>([count] {
        return take_seats("/var/stations.lock", 1, count) && take_seats("/tmp/ready", 0, 1) && pause() == 0;
    });
    EXPECT_TRUE(support::eventually([] { return support::file_exists("/tmp/ready"); }));
    return requests;
}

TEST(CgiAnswer, refuses_a_fifth_request_at_once) {
    const auto others = requests_under_way(4);
    EXPECT_EQ(post("stations", "ap=10.0.0.1"), unavailable("requests: too many at once"));
    EXPECT_FALSE(support::file_exists("/var/calls"));
}

TEST(CgiAnswer, takes_a_fourth_request) {
    const auto others = requests_under_way(3);
    EXPECT_NE(post("stations", "ap=10.0.0.1").find("DevStalist"), std::string::npos);
}

TEST(CgiToken, is_told_to_the_page) {
    EXPECT_EQ(web::call("token", {{"PAGE_TOKEN", "abc"}}), std::string(web::headers) + R"({"token":"abc"})");
}

}  // namespace
