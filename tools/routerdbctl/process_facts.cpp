#include "process_facts.h"

#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace ctl {

namespace {

/// Reads a file of a process.
std::size_t read_file_of(pid_t process, const char *name, char *text, std::size_t size) {
    char path[40];
    std::snprintf(path, sizeof(path), "/proc/%d/%s", static_cast<int>(process), name);
    return read_small_file(path, text, size);
}

/// When a process was started: the twenty-second field of its "stat", in ticks since the machine was.
std::int64_t start_of(const char *stat_text) {
    const char *field = std::strrchr(stat_text, ')');  // the name that ends here may have blanks
    for (int number = 2; field != nullptr && number < 22; ++number) {
        field = std::strchr(field + 1, ' ');
    }
    timespec now{};
    timespec since_boot{};
    clock_gettime(CLOCK_REALTIME, &now);
    clock_gettime(CLOCK_BOOTTIME, &since_boot);
    const long long ticks = field != nullptr ? std::strtoll(field, nullptr, 10) : 0;
    return now.tv_sec - since_boot.tv_sec + ticks / sysconf(_SC_CLK_TCK);
}

/// The user whose rights it has: the second number of its "status". Its directory may be root's all the same.
uid_t user_of(const char *status_text) {
    const char *const line = std::strstr(status_text, "\nUid:");
    char *end = nullptr;
    return line != nullptr && std::strtoul(line + sizeof("\nUid:") - 1, &end, 10) != ~0UL
               ? static_cast<uid_t>(std::strtoul(end, nullptr, 10))
               : 0;
}

}  // namespace

std::size_t read_small_file(const char *path, char *text, std::size_t size) {
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    const ssize_t count = fd >= 0 ? read(fd, text, size - 1) : 0;
    if (fd >= 0) {
        close(fd);
    }
    const std::size_t length = count > 0 ? static_cast<std::size_t>(count) : 0;
    text[length] = '\0';
    return length;
}

bool read_process_facts(pid_t id, ProcessFacts &facts) {
    char text[2048];
    facts.id = id;
    const std::size_t name_length = read_file_of(id, "comm", facts.name, sizeof(facts.name));
    if (name_length == 0 || read_file_of(id, "stat", text, sizeof(text)) == 0) {
        return false;
    }
    facts.name[name_length - 1] = '\0';  // in place of the line's end
    facts.started = start_of(text);
    read_file_of(id, "status", text, sizeof(text));
    facts.user = user_of(text);
    const std::size_t length = read_file_of(id, "cmdline", facts.command, sizeof(facts.command));
    for (std::size_t i = 0; i + 1 < length; ++i) {
        facts.command[i] = facts.command[i] == '\0' ? ' ' : facts.command[i];
    }
    if (length == 0) {
        std::memcpy(facts.command, facts.name, sizeof(facts.name));
    }
    return true;
}

const char *name_of_user(uid_t user) {
    static char number[12];
    const passwd *const entry = getpwuid(user);
    std::snprintf(number, sizeof(number), "%u", static_cast<unsigned>(user));
    return entry != nullptr ? entry->pw_name : number;
}

}  // namespace ctl
