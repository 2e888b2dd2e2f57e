// What every function of the direct road does before and after its statement.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <cstdlib>

#include "harness/texts.h"

namespace bench::bare {

/// Draws the first delay of a call from rand(). Nobody is busy here, so that it is not used.
void draw_delay();

sqlite3 *open(const char *path);
sqlite3_stmt *prepare(sqlite3 *db, const char *sql);

/// The text of a column, empty for NULL.
const char *text(sqlite3_stmt *statement, int column);

/// The same as a number, and copied into a field.
inline std::int32_t integer(sqlite3_stmt *statement, int column) {
    return std::atoi(text(statement, column));
}
template <std::size_t width>
void copy(sqlite3_stmt *statement, int column, char (&field)[width]) {
    copy_text(text(statement, column), field);
}

/// Holds the lock file.
class Lock {
public:
    enum class Draw : unsigned char { before_opening, after_opening };

    explicit Lock(Draw draw = Draw::after_opening);
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;
    ~Lock();

private:
    int fd_;
};

/// The first column of the first row as a number, on a connection of its own.
int number(const char *path, const char *sql);

/// How many rows a statement has, on a connection of its own.
int count_rows(const char *sql);

/// Executes a statement as writers do: mutex, lock file, tuning, statement.
void execute(const char *sql);

}  // namespace bench::bare
