// What every function of the direct road does before and after its statement.
#pragma once

#include <sqlite3.h>

#include <cstdlib>

namespace bench::bare {

/// Draws the first delay of a call from rand(). Nobody is busy here, so that it is not used.
void draw_delay();

class Connection {
public:
    explicit Connection(const char *path);
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    ~Connection();

    operator sqlite3 *() const { return db_; }  // NOLINT(google-explicit-constructor): to be used as one

private:
    sqlite3 *db_ = nullptr;
};

/// The row that a statement stands on.
class Row {
public:
    explicit Row(sqlite3_stmt *statement) : statement_(statement) {}

    const char *text(int column) const {
        const unsigned char *const text = sqlite3_column_text(statement_, column);
        return text != nullptr ? reinterpret_cast<const char *>(text) : "";
    }
    int number(int column) const { return std::atoi(text(column)); }

private:
    sqlite3_stmt *statement_;
};

sqlite3_stmt *prepare(sqlite3 *db, const char *sql);

/// Calls `use` with each row of a statement.
template <typename Use>
void for_each(sqlite3 *db, const char *sql, Use use) {
    sqlite3_stmt *const statement = prepare(db, sql);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        use(Row(statement));
    }
    sqlite3_finalize(statement);
}

/// Calls it with the first row alone, if there is one, and reads no further.
template <typename Use>
void for_first(sqlite3 *db, const char *sql, Use use) {
    sqlite3_stmt *const statement = prepare(db, sql);
    if (sqlite3_step(statement) == SQLITE_ROW) {
        use(Row(statement));
    }
    sqlite3_finalize(statement);
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
