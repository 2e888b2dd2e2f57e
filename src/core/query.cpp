#include "core/query.h"

#include <unistd.h>

#include "core/statement.h"

namespace routerdb {

namespace {

/// Closes standard input at the end of the scope if the profile says so.
class InputCloser {
public:
    explicit InputCloser(StandardInput input) : input_(input) {}
    InputCloser(const InputCloser &) = delete;
    InputCloser &operator=(const InputCloser &) = delete;
    ~InputCloser() {
        if (input_ == StandardInput::closed) {
            close(STDIN_FILENO);  // Deliberate: callers have come to expect it.
        }
    }

private:
    StandardInput input_;
};

/// The rows of one query on their way to the caller.
struct Collector {
    Rows rows;
    Destination destination;
    int index;    // of the row, from 0
    int outcome;  // what the query returns

    /// @return whether the next row is wanted
    bool take(const Row &row);

private:
    void take_last_text(const Row &row) const;
};

bool Collector::take(const Row &row) {
    switch (rows) {
        case Rows::counted_up:
            ++*destination.counter;
            return true;
        case Rows::counted:
            ++outcome;
            return true;
        case Rows::summed_diagonal:
            outcome = static_cast<int>(static_cast<unsigned>(outcome) + static_cast<unsigned>(row.number(index)));
            return true;
        case Rows::last_diagonal:
            *destination.number = row.unsigned_number(index);
            return true;
        case Rows::first_number:
            outcome = row.number(0);
            return false;
        case Rows::first_text:
            destination.text.take(row.text(0, "0"));
            return false;
        case Rows::unseen:
            return true;
        case Rows::last_text:
            take_last_text(row);
            return true;
    }
    return false;
}

void Collector::take_last_text(const Row &row) const {
    const char *text = row.text(0, nullptr);
    if (text != nullptr) {
        destination.text.take(text);
    }
}

/// Walks the rows of a statement that has been prepared with `code`.
int deliver(const QueryProfile &profile, int code, Statement &statement, sqlite3 *db, Backoff &backoff,
            Destination destination) {
    if (code != SQLITE_OK) {
        report(profile.prepare_failure, {nullptr, code, sqlite3_errmsg(db)});
        return profile.failed_prepare_result;
    }
    if (build_profile.skips_unseen_rows && profile.rows == Rows::unseen) {
        return 0;
    }
    Collector collector{profile.rows, destination, 0, 0};
    bool more = statement.first_row(backoff);
    while (more) {
        more = collector.take(statement.row()) && statement.next_row();
        ++collector.index;
    }
    return collector.outcome;
}

}  // namespace

int query(const QueryProfile &profile, const char *sql, Destination destination, SharedConnection *shared) {
    const InputCloser input_closer(profile.standard_input);
    Access access(profile.access, shared);
    if (!access.open()) {
        return -1;
    }
    Statement statement;
    const int code = access.prepare(statement, sql);
    return access.lost() ? -1 : deliver(profile, code, statement, access.db(), access.backoff(), destination);
}

int query(const QueryProfile &profile, const Text &sql, Destination destination, SharedConnection *shared) {
    return sql.complete() ? query(profile, sql.c_str(), destination, shared) : -1;
}

int query(const QueryProfile &profile, sqlite3 *db, Backoff &backoff, const char *sql, Destination destination) {
    Statement statement;
    const int code = statement.prepare(db, sql, backoff);
    return deliver(profile, code, statement, db, backoff, destination);
}

}  // namespace routerdb
