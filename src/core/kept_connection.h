// The connections that stay open between calls: one to each database, for reading.
//
// What stays is the schema as SQLite has parsed it, and statements: never a page, a lock or a transaction. Nobody is
// held up by that, and nothing is read but what is in the file at the time. Whoever finds the connection in use, and
// whatever is unusual, makes do with a connection of its own.
#pragma once

#include <sqlite3.h>

#include "core/backoff.h"
#include "core/connection.h"
#include "core/statement.h"

namespace routerdb::kept_connection {

/// Hands the connection to a reading that has none, and waits for nobody. It is opened by the second call that asks for
/// it: a program that reads once and ends does not pay for it. It is used by the process that opened it alone, as long
/// as its descriptor is the file that the path leads to.
/// @return whether there is one
[[nodiscard]] bool lend(Database database, Connection &reading);

/// What closing does with it: pages go, and the next reading may have it.
/// @return false for any other connection
bool take_back(sqlite3 *db);

/// Prepares a statement as SQLite does; on a kept connection, one of its shape that is at hand.
int prepare(sqlite3 *db, const char *sql, sqlite3_stmt **statement);

/// Finalises a statement, or keeps it with its connection.
void finalize(sqlite3 *db, sqlite3_stmt *statement);

/// Holds the database as it is while a reading prepares its statement and takes the first step, by which the statement
/// holds it. In the same transaction the schema is compared with the one that the connection has. Of any other
/// connection nothing is held.
class Pin {
public:
    /// Waits while the database is busy.
    Pin(sqlite3 *db, Backoff &backoff);
    Pin(const Pin &) = delete;
    Pin &operator=(const Pin &) = delete;

    /// Whether the connection may be used.
    bool holds() const { return holds_; }

    /// Something has failed: the connection is not kept.
    void give_up();

private:
    sqlite3 *db_;
    Statement statement_;
    bool holds_;
};

}  // namespace routerdb::kept_connection
