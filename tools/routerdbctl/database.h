// Reading: one connection, and the rows of a query.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <string_view>

#include "status.h"

namespace ctl {

/// A connection, which changes nothing unless it was opened to write.
class Database {
public:
    Database() = default;
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;
    ~Database() { sqlite3_close(db_); }

    /// Opens a file.
    /// @param seconds  how long to wait for whoever has it locked
    /// @return done, or what fail() has said
    Status open(const char *path, unsigned seconds);

    /// Opens a file such that nothing of it changes: even what a killed writer has left is not undone.
    /// @param milliseconds  how long to wait for whoever has it locked
    /// @return the result code of SQLite, with what it adds to it
    int open_to_look(const char *path, int milliseconds);

    /// Opens a file, or what an URI names, to write to it and to what is put beside it. No trigger runs.
    Status open_to_write(const char *uri, unsigned seconds);

    /// Opens what is in memory only: values that are put into it.
    Status open_in_memory();

    /// Puts another file beside it under a schema name, to read from it.
    Status attach(const char *path, const char *schema);

    /// Runs statements that are our own.
    Status run(const char *sql);

    /// From here on all queries see the rows as they are now, until the end of the connection or release().
    Status hold();
    Status release();

    sqlite3 *handle() const { return db_; }

    /// While there is one, what is in memory beside the file may be written.
    class Scratch {
    public:
        explicit Scratch(Database &database) : database_(database) { database_.run("pragma query_only = 0"); }
        Scratch(const Scratch &) = delete;
        Scratch &operator=(const Scratch &) = delete;
        ~Scratch() { database_.run("pragma query_only = 1"); }

    private:
        Database &database_;
    };

private:
    sqlite3 *db_ = nullptr;
};

/// The rows of one query.
class Query {
public:
    /// @param failure  what to say of one that cannot be run
    Query(const Database &database, const char *sql, const char *failure = "cannot read the database");
    Query(const Query &) = delete;
    Query &operator=(const Query &) = delete;
    ~Query() { sqlite3_finalize(statement_); }

    /// Gives a parameter its value, which has to live as long as the query.
    Query &bind(int number, std::string_view value);
    Query &bind(int number, std::int64_t value);

    /// Goes to the next row.
    /// @return whether there is one
    bool next();

    /// Goes back to before the first row.
    void rewind();

    /// Done, or what fail() has said.
    Status status() const { return status_; }

    /// What SQLite says of it then.
    const char *error() const { return sqlite3_errmsg(db_); }

    int columns() const { return sqlite3_column_count(statement_); }
    const char *name(int column) const { return sqlite3_column_name(statement_, column); }
    int type(int column) const { return sqlite3_column_type(statement_, column); }
    std::int64_t number(int column) const { return sqlite3_column_int64(statement_, column); }
    sqlite3_value *value(int column) const { return sqlite3_column_value(statement_, column); }

    /// The bytes of a value; empty for NULL.
    std::string_view text(int column) const;

private:
    sqlite3 *db_;
    sqlite3_stmt *statement_ = nullptr;
    const char *failure_;
    Status status_ = Status::done;
};

/// The first number of a query's first row; 0 without one.
std::int64_t number_of(const Database &database, const char *sql);

}  // namespace ctl
