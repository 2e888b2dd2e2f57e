// The functions of the direct road that run one statement, called alike, and all that is expected of them: DbSqlExec
// and the ten statement helpers, a row of one table each.
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "support/database.h"

using Lines = std::vector<std::string>;
using Sleeps = std::vector<unsigned>;

/// What a call gave its caller.
struct Outcome {
    long long result;
    std::string destination;  // what the caller's variable holds afterwards; "" for helpers without one
};

bool operator==(const Outcome &left, const Outcome &right);
std::ostream &operator<<(std::ostream &out, const Outcome &outcome);

/// What a failure leaves for others to see.
struct Traces {
    Outcome outcome;
    std::string output;
    std::string error;
    Lines log;
};

bool operator==(const Traces &left, const Traces &right);
std::ostream &operator<<(std::ostream &out, const Traces &traces);

/// A function that runs a statement. One that works on its caller's connection takes `db`, the others open their own.
/// The caller's variable starts as 1000, or as the text "before".
struct Callable {
    const char *name;
    Outcome (*call)(sqlite3 *db, const char *sql);
};

std::ostream &operator<<(std::ostream &out, const Callable &callable);

/// Where a helper leaves what it finds.
enum class Delivers { nothing, number, text, other };

/// Outcomes for queries that any helper may meet.
struct Outcomes {
    Outcome five;  // "select 5;"
    Outcome no_row;
    Outcome null_column;
    Outcome rows_5_and_7;
    Outcome rows_of_two;
    Outcome rows_of_three;
    Outcome null_in_last_row;
};

struct Helper : Callable {
    Delivers delivers;
    const char *database = support::main_database;

    Lines calls{};                          // of "select 5;"
    Lines holdings{};                       // meanwhile
    bool opens = true;                      // a connection of its own
    bool locks = false;                     // the lock file
    int statements_ahead = 0;               // of the caller's, through sqlite3_exec
    Sleeps sleeps{56, 61, 66, 71, 76, 81};  // of two series of three retries, with the smallest first delay
    unsigned longest_first = 155;           // sleep, with the greatest first delay

    Outcomes outcomes{};
    Traces open_failure{};
    bool abandons = false;  // the connection that SQLite could not open
    Traces statement_failure{};
    std::string held_when_it_prints = "nothing";
};

/// All of them.
const std::vector<Helper> &helpers();

/// The one with a name.
const Helper &helper(const std::string &name);

/// Those that a condition picks.
template <typename Condition>
std::vector<Helper> helpers_that(Condition condition) {
    std::vector<Helper> picked;
    for (const Helper &helper : helpers()) {
        if (condition(helper)) {
            picked.push_back(helper);
        }
    }
    return picked;
}

inline bool reads_rows(const Helper &helper) {
    return helper.delivers != Delivers::nothing;
}

struct CloseConnection {
    void operator()(sqlite3 *db) const { sqlite3_close(db); }
};

/// A connection as a caller that knows nothing of busy handlers has it.
using CallersConnection = std::unique_ptr<sqlite3, CloseConnection>;

CallersConnection open_callers_connection(const char *database = support::main_database);

/// Gives the process a standard input if it has none.
void open_standard_input();

/// A test that is run for each helper that it is about.
class HelperTest : public ::testing::TestWithParam<Helper> {
protected:
    Outcome call(const char *sql) const { return GetParam().call(callers_.get(), sql); }

    const CallersConnection callers_ = open_callers_connection();
};

inline std::string helper_name(const ::testing::TestParamInfo<Helper> &info) {
    return info.param.name;
}
