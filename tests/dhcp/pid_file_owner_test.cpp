// Whose pid file is believed.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <string>
#include <vector>

#include "dhcp/leases.h"
#include "support/database.h"
#include "support/profile.h"

namespace {

/// Users as the library is to see them, and what it sends.
struct Users {
    uid_t caller;
    uid_t file;
    uid_t process;
    std::vector<std::string> signals;
};

Users *users = nullptr;

}  // namespace

extern "C" {

uid_t geteuid() noexcept {
    return users != nullptr ? users->caller : 0;
}

int fstat(int fd, struct stat *file) noexcept {
    const int result = reinterpret_cast<decltype(&fstat)>(dlsym(RTLD_NEXT, "fstat"))(fd, file);
    if (users != nullptr && file->st_size == 3) {
        file->st_uid = users->file;
    }
    return result;
}

int stat(const char *__restrict path, struct stat *__restrict file) noexcept {
    using Function = int (*)(const char *, struct stat *);
    if (users != nullptr && std::strcmp(path, "/proc/12") == 0) {
        *file = {};
        file->st_uid = users->process;
        return 0;
    }
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, "stat"))(path, file);
}

int kill(pid_t process, int signal) noexcept {
    if (users != nullptr) {
        users->signals.push_back(std::to_string(process) + " " + std::to_string(signal));
    }
    return 0;
}

}  // extern "C"

namespace {

/// Whether the process that a file names is signalled.
bool is_signalled(uid_t caller, uid_t file, uid_t process) {
    support::write_file(leases::pid_file, "12\n");
    support::write_file(leases::text_file, "");
    Users seen{caller, file, process, {}};
    users = &seen;
    char host[128] = "";
    EXPECT_EQ(get_hostname_by_mac_from_lease("AA", host, leases::text_file, leases::pid_file), 1);
    users = nullptr;
    EXPECT_TRUE(seen.signals.empty() || seen.signals == std::vector<std::string>{"12 10"});
    return !seen.signals.empty();
}

constexpr uid_t root = 0;
constexpr uid_t caller = 1000;
constexpr uid_t stranger = 2000;
constexpr bool believes_all = !support::build_profile.checks_pid_file;

TEST(PidFileOwner, is_believed_when_it_is_root) {
    for (const uid_t process : {root, caller, stranger}) {
        EXPECT_TRUE(is_signalled(root, root, process));
        EXPECT_TRUE(is_signalled(caller, root, process));
    }
}

TEST(PidFileOwner, is_believed_when_file_and_process_are_the_callers) {
    EXPECT_TRUE(is_signalled(caller, caller, caller));
    EXPECT_EQ(is_signalled(caller, caller, root), believes_all);
    EXPECT_EQ(is_signalled(caller, caller, stranger), believes_all);
}

TEST(PidFileOwner, is_not_believed_when_it_is_anybody_else) {
    for (const uid_t process : {root, caller, stranger}) {
        EXPECT_EQ(is_signalled(root, stranger, process), believes_all);
        EXPECT_EQ(is_signalled(caller, stranger, process), believes_all);
    }
}

}  // namespace
