// The functions of the direct road that run one statement, called alike: DbSqlExec and the ten statement helpers.
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <memory>
#include <ostream>
#include <string>

/// What a call gave its caller.
struct Outcome {
    long long result;
    std::string destination;  // what the caller's variable holds afterwards; "" for helpers without one
};

bool operator==(const Outcome &left, const Outcome &right);
std::ostream &operator<<(std::ostream &out, const Outcome &outcome);

/// One of them. The one that works on its caller's connection takes `db`, the others open their own.
struct Helper {
    const char *name;
    Outcome (*call)(sqlite3 *db, const char *sql);
};

std::ostream &operator<<(std::ostream &out, const Helper &helper);

namespace helpers {

// The caller's variable starts as 1000, or as the text "before".
extern const Helper db_sql_exec;
extern const Helper exec_char;
extern const Helper exec_char_int;
extern const Helper exec_char_long;
extern const Helper exec_char_char;
extern const Helper int_count;
extern const Helper int_rows;
extern const Helper int_count_route;
extern const Helper int_count_dpi;
extern const Helper sqlite_int;
extern const Helper sqlite_str_n;

}  // namespace helpers

struct CloseConnection {
    void operator()(sqlite3 *db) const { sqlite3_close(db); }
};

/// A connection to the main database, as a caller that knows nothing of busy handlers has it.
using CallersConnection = std::unique_ptr<sqlite3, CloseConnection>;

CallersConnection open_callers_connection();

/// Gives the process a standard input if it has none.
void open_standard_input();

/// A test that is run for each case of a table. A case is a helper and what is expected of it.
template <typename Case>
class HelperTest : public ::testing::TestWithParam<Case> {
protected:
    Outcome call(const char *sql) const { return this->GetParam().call(callers_.get(), sql); }

    const CallersConnection callers_ = open_callers_connection();
};

template <typename Case>
std::string helper_name(const ::testing::TestParamInfo<Case> &info) {
    return info.param.name;
}
