#include "harness/outcomes.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "bare/by_hand.h"
#include "harness/desk.h"
#include "harness/settings.h"

namespace bench::outcomes {

namespace {

/// A database file and its content at the start.
struct Kept {
    const char *path;
    std::string content;
};

std::array<Kept, 2> kept{{{paths::main_database, {}}, {paths::catalogue_database, {}}}};

template <typename Record>
std::string bytes_of(const Record &record) {
    return {reinterpret_cast<const char *>(&record), sizeof(record)};
}

std::string content_of(int fd) {
    std::string content(static_cast<std::size_t>(lseek(fd, 0, SEEK_END)), '\0');
    if (pread(fd, content.data(), content.size(), 0) != static_cast<ssize_t>(content.size())) {
        std::perror("bench: cannot read a file again");
        std::exit(1);
    }
    return content;
}

void put_back(const Kept &database) {
    const int fd = open(database.path, O_WRONLY | O_TRUNC);
    if (write(fd, database.content.data(), database.content.size()) != static_cast<ssize_t>(database.content.size())) {
        std::perror("bench: cannot restore a database");
        std::exit(1);
    }
    close(fd);
}

}  // namespace

void set_up() {
    for (Kept &database : kept) {
        const int fd = open(database.path, O_RDONLY);
        database.content = content_of(fd);
        close(fd);
    }
    configured_places();  // the tables are there before any variant runs: each finds the allocator in the same state
    reported_places();
    const int printed_to = memfd_create("printed", 0);
    dup2(printed_to, STDOUT_FILENO);
    close(printed_to);
}

std::string device() {
    return bytes_of(desk.device);
}

std::string devices() {
    std::string bytes = std::to_string(desk.devices.count);
    for (unsigned index = 0; index < desk.devices.count; ++index) {
        bytes += bytes_of(*desk.devices.devices[index]);
    }
    return bytes;
}

std::string url_filters() {
    return bytes_of(desk.url_filters);
}

std::string behavior_rules() {
    return bytes_of(desk.behavior_rules);
}

std::string reply() {
    const std::size_t size = desk.reply.size > 0 ? static_cast<std::size_t>(desk.reply.size) : 0;
    return {static_cast<const char *>(desk.reply.data), size};
}

std::string device_rows() {
    sqlite3 *db = nullptr;
    sqlite3_open(paths::main_database, &db);
    std::string rows;
    const auto append = [](void *to, int count, char **values, char **) {
        for (int column = 0; column < count; ++column) {
            *static_cast<std::string *>(to) += values[column] != nullptr ? values[column] : "(null)";
            *static_cast<std::string *>(to) += '|';
        }
        return 0;
    };
    sqlite3_exec(db, "select * from DevInfo order by Dev_Sn;", append, &rows, nullptr);
    sqlite3_close(db);
    return rows;
}

std::string printed() {
    return content_of(STDOUT_FILENO);
}

void free_devices(Variant /*variant*/) {
    for (unsigned index = 0; index < desk.devices.count; ++index) {
        std::free(desk.devices.devices[index]);
    }
    desk.devices.count = 0;
}

void restore(Variant /*variant*/) {
    for (const Kept &database : kept) {
        put_back(database);
    }
}

void restore_for_update(Variant variant) {
    restore(variant);
    bare::get_device();
    std::strcpy(desk.device.wlan[2].Ssid, "Meetings on the 2nd floor");
    std::strcpy(desk.device.Dev_Wlan_Channel, "6");
}

void restore_for_report(Variant variant) {
    restore(variant);
    bare::get_device_converted();
}

void restore_for_registration(Variant variant) {
    restore_for_report(variant);
    sqlite3 *db = nullptr;
    sqlite3_open(paths::main_database, &db);
    sqlite3_exec(db, "delete from DevInfo where Dev_Sn='218212544';", nullptr, nullptr, nullptr);
    sqlite3_close(db);
}

void write_elsewhere(Variant variant) {
    static int writes = 0;  // a write that changes nothing would be none
    forget_printed(variant);
    const std::string sql = "pragma user_version = " + std::to_string(++writes) + ";";
    const pid_t writer = fork();
    if (writer == 0) {
        sqlite3 *db = nullptr;
        const bool written = sqlite3_open(paths::main_database, &db) == SQLITE_OK &&
                             sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
        _exit(written ? 0 : 1);
    }
    int status = -1;
    if (writer < 0 || waitpid(writer, &status, 0) != writer || status != 0) {
        std::fputs("bench: a process could not write\n", stderr);
        std::exit(1);
    }
}

void let_settle() {
    constexpr std::time_t settled = 4;
    for (const Kept &database : kept) {
        struct stat file {};
        while (stat(database.path, &file) == 0 && std::time(nullptr) < file.st_ctim.tv_sec + settled) {
            usleep(100000);
        }
    }
}

void forget_printed(Variant /*variant*/) {
    if (ftruncate(STDOUT_FILENO, 0) != 0) {
        std::perror("bench: cannot empty the output");
        std::exit(1);
    }
    lseek(STDOUT_FILENO, 0, SEEK_SET);
    if (fcntl(STDIN_FILENO, F_GETFD) < 0 && open("/dev/null", O_RDONLY) != STDIN_FILENO) {
        std::fputs("bench: standard input is taken\n", stderr);
        std::exit(1);
    }
}

void close_left_open(Variant /*variant*/) {
    constexpr int most = 512;
    for (int fd = STDERR_FILENO + 1; fd < most; ++fd) {
        char path[64] = "";
        const std::string link = "/proc/self/fd/" + std::to_string(fd);
        if (readlink(link.c_str(), path, sizeof(path) - 1) > 0 && std::strcmp(path, paths::text_leases) == 0) {
            close(fd);
        }
    }
}

void choose_service(Variant variant) {
    std::free(desk.reply.data);
    desk.reply = {};
    unlink(paths::service_socket);
    const std::string socket = std::string(paths::service_socket) + (variant == Variant::modern ? ".modern" : ".exact");
    if (symlink(socket.c_str(), paths::service_socket) != 0) {
        std::perror("bench: cannot choose a service");
        std::exit(1);
    }
}

}  // namespace bench::outcomes
