// The engine of the statement helpers that read.
#pragma once

#include "core/reading.h"

namespace routerdb {

/// What becomes of the rows.
enum class Rows : std::uint8_t {
    counted_up,       // each adds 1 to the caller's counter
    counted,          // the result is their number
    summed_diagonal,  // the result is the sum of column k of row k
    last_diagonal,    // column k of the last row k
    first_number,     // the result is the first column of the first row
    unseen,           // the result is 0: all that counts is that the text can be prepared
    last_text,        // the first column of every row, so that the last one stays; NULL leaves what was there
};

enum class StandardInput : std::uint8_t { kept, closed };

/// One statement helper.
struct QueryProfile {
    ReadProfile reading;
    Rows rows;
    std::int8_t failed_prepare_result;
    StandardInput standard_input;
};

/// The caller's variable, where the rows go into one. Which member counts follows from the profile's rows.
union Destination {
    unsigned int *counter;
    unsigned long *number;
    char *text;
};

/// Opens as the profile says, runs a query, closes.
/// @param shared  the connection of the call that the query is part of; null for one of its own
/// @return the number, for rows that give one; 0 for rows that go to the destination; the profile's result when the
///         text cannot be prepared; -1 when the database cannot be opened
[[nodiscard]] int query(const QueryProfile &profile, const char *sql, Destination destination = {nullptr},
                        SharedConnection *shared = nullptr);

/// The same with a text that was built. One that memory ran out for is not run.
/// @return as above; -1 for a text that is not run
[[nodiscard]] int query(const QueryProfile &profile, const Text &sql, Destination destination,
                        SharedConnection *shared = nullptr);

/// Runs a query on the connection of a caller. The first column of the first row becomes the text, "0" for NULL.
/// @return 0; -1 when the text cannot be prepared
[[nodiscard]] int read_first_text(sqlite3 *db, const char *sql, char *text);

}  // namespace routerdb
