#include "core/kept.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "routerdb.h"
#include "support/database.h"
#include "support/recorder.h"

namespace kept {

void name_device(const std::string &name) {
    support::execute("insert or replace into DevInfo(Dev_Sn,Dev_Name) values(" + std::to_string(known_device) + ",'" +
                     name + "');");
}

std::string read_name() {
    DevInfo device{};
    DB_getinfo(&device, known_device, 0);
    return device.Dev_Name;
}

void keep_connection() {
    read_name();
    read_name();
    ASSERT_EQ(descriptors().size(), 1U);
}

std::size_t opened_by_reading() {
    support::Recorder recorder;
    recorder.let_connections_be_kept();
    read_name();
    return recorder.calls({"sqlite3_open"}).size();
}

std::vector<int> descriptors() {
    std::vector<int> found;
    struct stat file {};
    EXPECT_EQ(stat(support::main_database, &file), 0);
    for (int fd = 0; fd < 256; ++fd) {
        struct stat other {};
        if (fstat(fd, &other) == 0 && other.st_dev == file.st_dev && other.st_ino == file.st_ino &&
            (fcntl(fd, F_GETFL) & O_ACCMODE) == O_RDONLY) {
            found.push_back(fd);
        }
    }
    return found;
}

int descriptor() {
    const std::vector<int> found = descriptors();
    EXPECT_EQ(found.size(), 1U);
    return found.empty() ? -1 : found.front();
}

}  // namespace kept
