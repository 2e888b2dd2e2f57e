#include "core/query.h"

#include <unistd.h>

#include <cstring>

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
        std::strcpy(destination.text, text);  // the caller vouches for the room
    }
}

/// Walks the rows.
int deliver(const QueryProfile &profile, Reading &reading, Destination destination) {
    if (build_profile.skips_unseen_rows && profile.rows == Rows::unseen) {
        return 0;
    }
    Collector collector{profile.rows, destination, 0, 0};
    bool more = reading.first_row();
    while (more) {
        more = collector.take(reading.row()) && reading.next_row();
        ++collector.index;
    }
    return collector.outcome;
}

}  // namespace

int query(const QueryProfile &profile, const char *sql, Destination destination, SharedConnection *shared) {
    const InputCloser input_closer(profile.standard_input);
    Reading reading(profile.reading, shared);
    switch (reading.start(sql)) {
        case Start::not_opened:
            return -1;
        case Start::not_prepared:
            return profile.failed_prepare_result;
        case Start::ready:
            break;
    }
    return deliver(profile, reading, destination);
}

int query(const QueryProfile &profile, const Text &sql, Destination destination, SharedConnection *shared) {
    return sql.complete() ? query(profile, sql.c_str(), destination, shared) : -1;
}

int read_first_text(sqlite3 *db, const char *sql, char *text) {
    Backoff backoff(FirstDelay::random);
    Statement statement;
    const int code = statement.prepare(db, sql, backoff);
    if (code != SQLITE_OK) {
        report({Stream::standard_output, Wording::webserver_error}, {nullptr, code, sqlite3_errmsg(db)});
        return -1;
    }
    if (statement.first_row(backoff)) {
        std::strcpy(text, statement.row().text(0, "0"));  // the caller vouches for the room
    }
    return 0;
}

}  // namespace routerdb
