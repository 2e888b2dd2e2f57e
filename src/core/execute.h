// Statements whose rows nobody wants.
#pragma once

#include "core/access.h"
#include "core/sql_view.h"

namespace routerdb {

enum class Pragmas : std::uint8_t { none, write_tuning };

struct ExecuteProfile {
    AccessProfile access;
    Pragmas pragmas;

    /// The same for texts that callers hand over.
    constexpr ExecuteProfile for_callers() const { return {access.for_callers(), pragmas}; }
};

/// Takes what the profile names, opens the database, and sets what the profile wants set.
[[nodiscard]] bool open_as(Access &access, const ExecuteProfile &profile);

/// An attempt that was busy part way has left its transaction open: the next one could not begin it again, and whoever
/// it waits for may be waiting for it.
void leave_transaction(sqlite3 *db);

/// Executes SQL on an open connection, retrying the whole text while the database is busy, without what a transaction
/// of the busy attempt did. A failure is written to standard output.
/// @return 0 or -1
[[nodiscard]] int execute(Access &access, const char *sql);

/// Opens as the profile says, executes, closes. A text that memory ran out for is not executed.
/// @return 0 or -1
[[nodiscard]] int execute(const ExecuteProfile &profile, SqlView sql);

/// Executes SQL under the lock file and leaves the background copy of the database behind.
/// @return 0 or -1
[[nodiscard]] int execute_with_copy(const char *sql);

/// Copies the main database onto itself in the background.
void copy_database_onto_itself();

}  // namespace routerdb
