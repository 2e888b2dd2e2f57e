// The engines of the statement helpers that read. Each opens as the profile says, runs a query, closes.
// `shared` is the connection of the call that the query is part of; null for one of its own.
#pragma once

#include "core/reading.h"
#include "text/text.h"

namespace routerdb {

// The outcome is the result: -1 when the database cannot be opened or the text cannot be prepared.

/// @return the number of rows
[[nodiscard]] int count(const ReadProfile &profile, SqlView sql);

/// @return the sum of column k of row k, both counted from 0
[[nodiscard]] int sum_diagonal(const ReadProfile &profile, SqlView sql);

/// @return the first column of the first row; 0 without a row
[[nodiscard]] int first_number(const ReadProfile &profile, SqlView sql, SharedConnection *shared = nullptr);

/// Closes a descriptor that is not the library's own, in the profile that does so.
void close_callers_descriptor(int descriptor);

/// As first_number(), and closes standard input so.
[[nodiscard]] int first_number_closing_input(const ReadProfile &profile, SqlView sql,
                                             SharedConnection *shared = nullptr);

/// For queries whose rows nobody sees: all that counts is that the text can be prepared.
/// @return 0
[[nodiscard]] int try_out(const ReadProfile &profile, SqlView sql, SharedConnection *shared = nullptr);

// The outcome goes into the caller's variable. The result is 0, also when the text cannot be prepared; -1 when the
// database cannot be opened.

/// Adds 1 to the counter for each row.
[[nodiscard]] int count(const ReadProfile &profile, SqlView sql, unsigned &counter, SharedConnection *shared = nullptr);

/// Reads column k of row k, both counted from 0, so that the last one stays.
[[nodiscard]] int read(const ReadProfile &profile, SqlView sql, unsigned long &number,
                       SharedConnection *shared = nullptr);

/// Where a text goes. One that is longer is cut so that its terminator fits.
struct TextRoom {
    char *first;
    std::size_t size;

    void take(const char *text) const { copy_cut(text, first, size); }
};

/// The room of a caller who vouches for it.
constexpr TextRoom unlimited_room(char *first) {
    return {first, SIZE_MAX};
}

/// Reads the first column of every row, so that the last one stays; NULL leaves what was there.
[[nodiscard]] int read(const ReadProfile &profile, SqlView sql, TextRoom text);

/// Runs a query on the connection of a caller. The first column of the first row becomes the text, "0" for NULL.
/// @return 0; -1 when the text cannot be prepared
[[nodiscard]] int read_first(sqlite3 *db, const char *sql, char *text);

}  // namespace routerdb
