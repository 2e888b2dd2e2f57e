#include "support/database.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace support {

namespace {

[[noreturn]] void fail(const std::string &what) {
    throw std::runtime_error(what);
}

}  // namespace

Database::Database(const char *path) {
    if (sqlite3_open_v2(path, &db_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        fail(std::string(path) + ": " + sqlite3_errmsg(db_));
    }
    sqlite3_busy_timeout(db_, 10'000);
}

Database::~Database() {
    sqlite3_close(db_);
}

void Database::execute(const std::string &sql) const {
    if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        fail(sql + ": " + sqlite3_errmsg(db_));
    }
}

std::vector<std::string> Database::rows(const std::string &sql) const {
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
        fail(sql + ": " + sqlite3_errmsg(db_));
    }
    std::vector<std::string> rows;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        std::string row;
        for (int column = 0; column < sqlite3_column_count(statement); ++column) {
            const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, column));
            row += (column > 0 ? "|" : "") + std::string(text != nullptr ? text : "NULL");
        }
        rows.push_back(row);
    }
    sqlite3_finalize(statement);
    return rows;
}

std::string Database::value(const std::string &sql) const {
    const std::vector<std::string> found = rows(sql);
    return found.empty() ? "" : found.front().substr(0, found.front().find('|'));
}

void execute(const std::string &sql) {
    Database().execute(sql);
}

std::string value(const std::string &sql) {
    return Database().value(sql);
}

std::string file_content(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        fail("cannot read " + path);
    }
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

void write_file(const std::string &path, const std::string &content) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << content;
    if (!file.flush()) {
        fail("cannot write " + path);
    }
}

bool file_exists(const std::string &path) {
    return access(path.c_str(), F_OK) == 0;
}

int open_descriptors() {
    DIR *directory = opendir("/proc/self/fd");
    int count = -3;  // ".", ".." and the directory's own
    while (readdir(directory) != nullptr) {
        ++count;
    }
    closedir(directory);
    return count;
}

bool lock_file_is_free() {
    const pid_t other = fork();  // a lock never stands in the way of its own process
    if (other == 0) {
        struct flock lock {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        const int fd = open(lock_file, O_RDWR);
        _exit(fd >= 0 && fcntl(fd, F_SETLK, &lock) == 0 ? 0 : 1);
    }
    int status = 0;
    waitpid(other, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::string locks() {
    struct stat root {};
    if (stat("/var", &root) != 0) {
        throw std::runtime_error("this is no private root");
    }
    char device[32];
    std::snprintf(device, sizeof(device), " %02x:%02x:", major(root.st_dev), minor(root.st_dev));
    std::istringstream lines(file_content("/proc/locks"));
    std::string found;
    for (std::string line; std::getline(lines, line);) {
        found += line.find(device) != std::string::npos ? line + "\n" : "";
    }
    return found;
}

bool somebody_waits_for_a_lock() {
    return locks().find("-> ") != std::string::npos;
}

}  // namespace support
