#include "core/journal.h"

#include <sqlite3.h>
#include <unistd.h>

#include "core/paths.h"
#include "core/retry.h"

namespace routerdb {

namespace {

/// Flash that cannot remove a journal gives an I/O error each time: a reset is what such a device needs, and soon.
constexpr Patience patience_for_settling{60'000'000, 1'000'000};

/// One attempt, on a connection of its own.
/// @return the primary result code of SQLite
int read_main_database() {
    sqlite3 *db = nullptr;
    int code = sqlite3_open_v2(paths::main_database, &db, SQLITE_OPEN_READWRITE, nullptr);
    if (code == SQLITE_OK) {
        code = sqlite3_exec(db, "select count(*) from sqlite_master;", nullptr, nullptr, nullptr);
    }
    sqlite3_close(db);
    return code & 0xff;
}

}  // namespace

void settle_main_database() {
    Backoff backoff(FirstDelay::microseconds_50, 100);
    Patience patience = patience_for_settling;
    [[maybe_unused]] const int code = retry_while_busy(backoff, nullptr, read_main_database, patience);
}

void remove_main_journals() {
    unlink(paths::main_journal);
    unlink(paths::main_write_ahead_log);
}

}  // namespace routerdb
