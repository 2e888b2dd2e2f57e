// The test's own hand on the databases, beside the library.
#pragma once

#include <sqlite3.h>

#include <string>
#include <vector>

namespace support {

inline constexpr char main_database[] = "/etc/config/systemconf/database/myrouter.db";
inline constexpr char catalogue_database[] = "/etc/config/systemconf/database/dpilib.db";
inline constexpr char factory_database[] = "/rom/etc/config/systemconf/database/myrouter.db";
inline constexpr char backup_database[] = "/var/tmpconfig/database/myrouter.db";
inline constexpr char lock_file[] = "/var/databaselock";
inline constexpr char service_socket[] = "/var/sqlserver_socket";
inline const std::string cannot_open_lock_file = std::string("cannot open ") + lock_file + "!\n";

/// One connection of the test's own. It waits for others up to ten seconds.
class Database {
public:
    explicit Database(const char *path = main_database);
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;
    ~Database();

    sqlite3 *handle() const { return db_; }

    /// Runs statements; throws std::runtime_error with SQLite's message if one fails.
    void execute(const std::string &sql) const;

    /// The rows of a query, their columns as text joined with '|'; NULL reads as "NULL".
    std::vector<std::string> rows(const std::string &sql) const;

    /// The first column of the first row as text; "" without a row.
    std::string value(const std::string &sql) const;

private:
    sqlite3 *db_ = nullptr;
};

/// On a connection that is opened and closed for it.
void execute(const std::string &sql);
std::string value(const std::string &sql);

/// Bytes of a file; throws if it cannot be read.
std::string file_content(const std::string &path);
void write_file(const std::string &path, const std::string &content);
bool file_exists(const std::string &path);

/// Descriptors that the process has open, counted.
int open_descriptors();

/// Whether another process could take the write lock on the database lock file now.
bool lock_file_is_free();

/// The locks on files of this private root, and who waits for them, as the kernel lists them. It lists those of open
/// files for everybody.
std::string locks();

/// Whether somebody in this private root is waiting for a lock.
bool somebody_waits_for_a_lock();

}  // namespace support
