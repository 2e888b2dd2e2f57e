#include "soak/places.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "soak/calls/calls.h"
#include "soak/clock.h"
#include "support/database.h"

namespace soak {

namespace {

constexpr char small_disk[] = "/small";
constexpr char read_only_disk[] = "/read-only";
constexpr char filling[] = "/small/filling";

std::string aside(const std::string &path) {
    return path + ".aside";
}

void put_aside(const std::string &path) {
    std::filesystem::rename(path, aside(path));
}

/// What was put aside comes back in the place of what stands there instead.
void put_back(const std::string &path) {
    if (support::file_exists(aside(path))) {
        std::filesystem::remove_all(path);
        std::filesystem::rename(aside(path), path);
    }
}

void move_to_small_disk(const char *directory) {
    put_aside(directory);
    std::filesystem::copy(aside(directory), small_disk);
    std::filesystem::create_directory_symlink(small_disk, directory);
}

void fill_small_disk() {
    std::FILE *const file = std::fopen(filling, "w");
    const std::string page(4096, 'x');
    while (std::fwrite(page.data(), 1, page.size(), file) == page.size() && std::fflush(file) == 0) {
    }
    std::fclose(file);
}

void spoil_by_full_disk(const char *directory) {
    move_to_small_disk(directory);
    fill_small_disk();
}

/// The main database has become larger than the backup that is there.
void spoil_by_full_disk_of_backup() {
    support::execute("insert into user_urlinfo(mark) values(zeroblob(500000));");
    spoil_by_full_disk(backup_directory);
}

/// Room comes back, and the files stay where they are.
void make_room() {
    unlink(filling);
}

void leave_small_disk(const char *directory) {
    put_back(directory);
    for (const auto &entry : std::filesystem::directory_iterator(small_disk)) {
        std::filesystem::remove_all(entry);
    }
}

void write_both(const std::string &content) {
    support::write_file(support::main_database, content);
    support::write_file(support::catalogue_database, content);
}

/// Runs a statement for each table of both databases, with its name in the place of '?'.
void for_each_table(const std::string &statement) {
    for (const char *const path : {support::main_database, support::catalogue_database}) {
        const support::Database database(path);
        for (const std::string &table :
             database.rows("select name from sqlite_master where type = 'table' and name not like 'sqlite%';")) {
            std::string sql = statement;
            for (std::size_t at = sql.find('?'); at != std::string::npos; at = sql.find('?')) {
                sql.replace(at, 1, table);
            }
            database.execute(sql);
        }
    }
}

}  // namespace

std::vector<Place> places() {
    return {
        {"full_disk", [] { spoil_by_full_disk(database_directory); }, make_room, ENOSPC, 0, false},
        {"full_disk_of_the_backup", spoil_by_full_disk_of_backup, make_room, 0, 0, true},
        {"read_only_disk",
         [] {
             put_aside(database_directory);
             std::filesystem::create_directory_symlink(read_only_disk, database_directory);
         },
         [] { put_back(database_directory); }, EACCES, 0, false},
        {"no_directory", [] { put_aside(database_directory); }, [] { put_back(database_directory); }, EIO, EIO, false},
        {"garbage", [] { write_both(std::string(20'000, '?')); }, put_router_back, EIO, EIO, false},
        {"empty_files", [] { write_both(""); }, put_router_back, EIO, EIO, false},
        {"no_tables", [] { for_each_table("drop table ?;"); }, put_router_back, EIO, EIO, false},
        {"other_columns", [] { for_each_table("drop table ?; create table ?(other); insert into ? values('x');"); },
         put_router_back, EIO, EIO, true},
        {"no_lock_file", [] { put_aside(support::lock_file); }, [] { put_back(support::lock_file); }, ENOENT, 0, false},
        {"clock_set_back", [] { set_clock_back(true); }, [] { set_clock_back(false); }, 0, 0, true},
    };
}

void put_places_back() {
    set_clock_back(false);
    put_back(support::lock_file);
    leave_small_disk(database_directory);
    leave_small_disk(backup_directory);
    put_router_back();
}

}  // namespace soak
