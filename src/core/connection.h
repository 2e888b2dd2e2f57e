// An SQLite connection and its owner.
#pragma once

#include <sqlite3.h>

#include <cstdint>

#include "core/backoff.h"

namespace routerdb {

enum class Database : std::uint8_t { main, catalogue };

/// The file of a database.
const char *path_of(Database database);

/// Owns one connection and closes it, or gives it back where it is one that is kept.
class Connection {
public:
    Connection() = default;
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    ~Connection() { close(); }

    /// Opens a database, retrying while it is busy.
    /// @return the result code of SQLite; whatever it is, handle() is what SQLite made of it
    [[nodiscard]] int open(Database database, Backoff &backoff);

    /// Opens any file, once.
    /// @param flags  SQLITE_OPEN_...
    [[nodiscard]] int open_file(const char *path, int flags);

    /// Closes now instead of at the end of the scope.
    /// @return the result code of SQLite; SQLITE_OK when nothing was open
    int close();

    /// Takes over what another owner has, which is empty then.
    void adopt(Connection &other);

    /// Owns a connection that is open.
    void take(sqlite3 *handle) {
        close();
        handle_ = handle;
    }

    /// Gives the handle up without closing it.
    void abandon() { handle_ = nullptr; }

    sqlite3 *handle() const { return handle_; }

private:
    sqlite3 *handle_ = nullptr;
};

}  // namespace routerdb
