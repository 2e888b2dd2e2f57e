// The files of the databases: whether they are there, and are databases.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "checks.h"
#include "core/paths.h"
#include "process_facts.h"

namespace ctl {

namespace {

namespace paths = routerdb::paths;

constexpr char mend_main[] =
    "\"routerdbctl db restore\" puts the backup in its place, \"routerdbctl db reset\" the factory's";
constexpr char mend_others[] = "install it again";
constexpr char mend_backup[] = "\"routerdbctl db backup\" makes a new one, once the main database is sound";
constexpr char as_root[] = "try again as root";

/// Where the first bytes of a database say how it is written.
constexpr std::size_t version_of_writing = 18;
constexpr unsigned char write_ahead_log = 2;

/// Looks at a file as such.
/// @return whether it may be looked into
bool look_at_file(Report &report, const char *path, const char *advice) {
    struct stat file {};
    if (stat(path, &file) != 0) {
        report.fail(errno == EACCES ? as_root : advice, "%s: %s", path, std::strerror(errno));
        return false;
    }
    if (!S_ISREG(file.st_mode) || file.st_size == 0) {
        report.fail(advice, "%s is %s", path, S_ISREG(file.st_mode) ? "empty" : "no file");
        return false;
    }
    report.ok("%s: %lld bytes, owner %s, mode %04o", path, static_cast<long long>(file.st_size),
              name_of_user(file.st_uid), static_cast<unsigned>(file.st_mode) & 07777U);
    if ((file.st_mode & S_IWOTH) != 0) {
        report.warn("\"chmod o-w\" it", "%s may be written by everybody", path);
    }
    return true;
}

/// Reads how a file begins: SQLite would leave files beside one that has a write-ahead log.
/// @return whether it begins as a database without one
bool look_at_beginning(Report &report, const char *path, const char *advice) {
    constexpr char start[] = "SQLite format 3";
    char bytes[100];
    const int fd = open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        report.fail(as_root, "%s: %s", path, std::strerror(errno));
        return false;
    }
    const bool is_whole = read(fd, bytes, sizeof(bytes)) == static_cast<ssize_t>(sizeof(bytes));
    close(fd);
    if (!is_whole || std::memcmp(bytes, start, sizeof(start)) != 0) {
        report.fail(advice, "%s is no database", path);
        return false;
    }
    if (static_cast<unsigned char>(bytes[version_of_writing]) == write_ahead_log) {
        report.warn("\"PRAGMA journal_mode=delete\" in sqlite3 takes it out of it",
                    "%s has a write-ahead log, which the library does not expect; what is in it is not looked at",
                    path);
        return false;
    }
    return true;
}

/// Opens a database, and says why it cannot be.
bool look_into(Examination &examination, const char *path, const char *advice, Database &database) {
    const int code = database.open_to_look(path, static_cast<int>(examination.seconds) * 500);
    if (code == SQLITE_READONLY_ROLLBACK) {
        examination.report.warn("whatever reads next undoes it, such as \"routerdbctl table list\"",
                                "a writer of %s was killed, and what it had begun is not undone yet", path);
    } else if ((code & 0xff) == SQLITE_BUSY) {
        examination.report.fail("end the program that has it; \"fuser\" names it", "%s is locked", path);
    } else if (code != SQLITE_OK) {
        examination.report.fail(advice, "%s: %s", path, sqlite3_errmsg(database.handle()));
    }
    return code == SQLITE_OK;
}

/// Says what SQLite finds wrong inside.
void look_for_damage(Report &report, const Database &database, const char *advice) {
    Query query(database, "PRAGMA quick_check(3)");
    while (query.next()) {
        if (query.text(0) != "ok") {
            report.fail(advice, "%.*s", static_cast<int>(query.text(0).size()), query.text(0).data());
        }
    }
    if (query.status() != Status::done) {
        report.fail(advice, "%s", query.error());
    }
}

/// Looks at a database beside the main one.
/// @return whether it is fit
bool look_at_other(Examination &examination, const char *path, const char *advice) {
    Database database;
    const bool is_read = look_at_file(examination.report, path, advice) &&
                         look_at_beginning(examination.report, path, advice) &&
                         look_into(examination, path, advice, database);
    if (is_read) {
        look_for_damage(examination.report, database, advice);
    }
    return is_read && examination.report.health() != Health::bad;
}

}  // namespace

bool open_main_database(Examination &examination, Database &database) {
    if (!examination.is_readable) {
        examination.report.warn("mend what is said of main-database first", "not looked at");
    }
    return examination.is_readable && look_into(examination, paths::main_database, mend_main, database);
}

void look_at_main_database(Examination &examination) {
    Report &report = examination.report;
    Database database;
    examination.is_readable = look_at_file(report, paths::main_database, mend_main) &&
                              look_at_beginning(report, paths::main_database, mend_main) &&
                              look_into(examination, paths::main_database, mend_main, database);
    struct stat directory {};
    if (stat(paths::main_directory, &directory) == 0 && (directory.st_mode & (S_IWOTH | S_ISVTX)) == S_IWOTH) {
        report.warn("\"chmod o-w\" it", "%s may be written by everybody", paths::main_directory);
    }
}

void look_at_content(Examination &examination) {
    Database database;
    if (open_main_database(examination, database)) {
        examination.report.ok("SQLite finds it sound");
        look_for_damage(examination.report, database, mend_main);
    }
}

void look_at_catalogue(Examination &examination) {
    look_at_other(examination, paths::catalogue_database, mend_others);
}

void look_at_factory(Examination &examination) {
    look_at_other(examination, paths::factory_database, mend_others);
}

void look_at_backup(Examination &examination) {
    constexpr char make_one[] = "\"routerdbctl db backup\" makes one";
    constexpr long long day = 24LL * 60 * 60;
    constexpr long long days_by_far = 7;
    struct stat backup {};
    struct stat main {};
    if (stat(paths::backup_database, &backup) != 0 && errno == ENOENT) {
        examination.report.warn(make_one, "there is none");
        return;
    }
    if (!look_at_other(examination, paths::backup_database, mend_backup) || stat(paths::main_database, &main) != 0) {
        return;
    }
    const long long days = (main.st_mtime - backup.st_mtime) / day;
    if (days >= days_by_far) {
        examination.report.warn(make_one, "%s is %lld days older than the main database", paths::backup_database, days);
    }
}

}  // namespace ctl
