// The busy rule: the one loop that tries again.
#pragma once

#include <sqlite3.h>

#include "core/backoff.h"

namespace routerdb {

/// Whether SQLite asks to try again. An I/O error counts: on the router's flash it passes.
constexpr bool is_busy(int code) {
    return code == SQLITE_BUSY || code == SQLITE_LOCKED || code == SQLITE_IOERR;
}

/// The patience of statements has no end.
struct EndlessPatience {
    static constexpr bool spend(int /*code*/, useconds_t /*sleep*/) { return true; }
};

/// One that ends: the microseconds that are left for sleeping. What the attempts themselves take does not count.
struct Patience {
    useconds_t busy;  // and locked
    useconds_t io_error;

    /// @return whether one more sleep after `code` is left, which then is spent
    bool spend(int code, useconds_t sleep) {
        useconds_t &left = code == SQLITE_IOERR ? io_error : busy;
        const bool enough = sleep <= left;
        left -= enough ? sleep : 0;
        return enough;
    }
};

/// Makes attempts until one ends with something else than busy or the patience does, sleeping in between.
/// @param backoff  the series of the call
/// @param db       the connection that is busy; read after each attempt, since an attempt may open it
/// @param attempt  returns a result code of SQLite
/// @return the code of the last attempt
template <typename Attempt, typename AnyPatience = EndlessPatience>
[[nodiscard]] int retry_while_busy(Backoff &backoff, sqlite3 *const &db, Attempt attempt, AnyPatience patience = {}) {
    int code = attempt();
    while (is_busy(code) && patience.spend(code, backoff.next_sleep())) {
        backoff.sleep(db);
        code = attempt();
    }
    return code;
}

}  // namespace routerdb
