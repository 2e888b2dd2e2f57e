#include "core/query.h"

#include <unistd.h>

#include <cstring>

namespace routerdb {

int count(const ReadProfile &profile, SqlView sql) {
    Reading reading(profile);
    if (reading.start(sql) != Start::ready) {
        return -1;
    }
    int rows = 0;
    while (reading.next_row()) {
        ++rows;
    }
    return rows;
}

int sum_diagonal(const ReadProfile &profile, SqlView sql) {
    Reading reading(profile);
    if (reading.start(sql) != Start::ready) {
        return -1;
    }
    unsigned sum = 0;
    for (int index = 0; reading.next_row(); ++index) {
        sum += static_cast<unsigned>(reading.row().number(index));
    }
    return static_cast<int>(sum);
}

int first_number(const ReadProfile &profile, SqlView sql, SharedConnection *shared) {
    Reading reading(profile, shared);
    if (reading.start(sql) != Start::ready) {
        return -1;
    }
    return reading.next_row() ? reading.row().number(0) : 0;
}

void close_callers_descriptor(int descriptor) {
    if (!build_profile.closes_its_own) {
        close(descriptor);  // Deliberate: callers have come to expect it.
    }
}

int first_number_closing_input(const ReadProfile &profile, SqlView sql, SharedConnection *shared) {
    const int number = first_number(profile, sql, shared);
    close_callers_descriptor(STDIN_FILENO);
    return number;
}

int try_out(const ReadProfile &profile, SqlView sql, SharedConnection *shared) {
    Reading reading(profile, shared);
    if (reading.start(sql) != Start::ready) {
        return -1;
    }
    while (!build_profile.skips_unseen_rows && reading.next_row()) {
    }
    return 0;
}

int count(const ReadProfile &profile, SqlView sql, unsigned &counter, SharedConnection *shared) {
    Reading reading(profile, shared);
    const Start start = reading.start(sql);
    while (reading.next_row()) {
        ++counter;
    }
    return start == Start::not_opened ? -1 : 0;
}

int read(const ReadProfile &profile, SqlView sql, unsigned long &number, SharedConnection *shared) {
    Reading reading(profile, shared);
    const Start start = reading.start(sql);
    for (int index = 0; reading.next_row(); ++index) {
        number = reading.row().unsigned_number(index);
    }
    return start == Start::not_opened ? -1 : 0;
}

int read(const ReadProfile &profile, SqlView sql, TextRoom text) {
    Reading reading(profile);
    const Start start = reading.start(sql);
    while (reading.next_row()) {
        if (const char *const value = reading.row().text(0, nullptr)) {
            text.take(value);
        }
    }
    return start == Start::not_opened ? -1 : 0;
}

int read_first(sqlite3 *db, const char *sql, char *text) {
    CallErrno call;
    Backoff backoff(FirstDelay::random);
    Statement statement;
    const bool prepared = statement.prepare(db, sql, backoff, webserver_on_output);
    if (prepared && statement.next_row(backoff)) {
        std::strcpy(text, statement.row().text(0, "0"));  // the caller vouches for the room
    }
    if (!statement.ended_well()) {
        call.fail(errno_of(statement.code()));
    }
    return prepared ? 0 : -1;
}

}  // namespace routerdb
