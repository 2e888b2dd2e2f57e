// What most commands begin with: the main database, open to be read, and a table of it.
#pragma once

#include "database.h"
#include "options.h"
#include "tables.h"

namespace ctl {

class Session {
public:
    explicit Session(const Invocation &invocation);

    /// Done, or what fail() has said.
    Status status() const { return status_; }

    const Database &database() const { return database_; }
    Database &database() { return database_; }

    /// Finds a table by its name, and in the database.
    Status find_table(const char *name, const Table *&table) const;

private:
    Database database_;
    Status status_;
};

/// Reads the id of a row, such as "3".
Status read_id(const char *text, std::int32_t &id);

}  // namespace ctl
