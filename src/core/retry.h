// The busy rule: the one loop that tries again.
#pragma once

#include <sqlite3.h>

#include "core/backoff.h"

namespace routerdb {

/// Whether SQLite asks to try again. An I/O error counts: on the router's flash it passes.
constexpr bool is_busy(int code) {
    return code == SQLITE_BUSY || code == SQLITE_LOCKED || code == SQLITE_IOERR;
}

/// Makes attempts until one ends with something else than busy or the patience does, sleeping in between.
/// @param backoff  the series of the call
/// @param db       the connection that is busy; read after each attempt, since an attempt may open it
/// @param attempt  returns a result code of SQLite
/// @param patience what is left of the patience for them
/// @return the code of the last attempt
template <typename Attempt, typename AnyPatience>
[[nodiscard]] int retry_while_busy(Backoff &backoff, sqlite3 *const &db, Attempt attempt, AnyPatience &patience) {
    int code = attempt();
    while (is_busy(code) && patience.spend(code, backoff.next_sleep())) {
        backoff.sleep(db);
        code = attempt();
    }
    return code;
}

/// The same with the patience of the call.
template <typename Attempt>
[[nodiscard]] int retry_while_busy(Backoff &backoff, sqlite3 *const &db, Attempt attempt) {
    return retry_while_busy(backoff, db, attempt, backoff.patience());
}

}  // namespace routerdb
