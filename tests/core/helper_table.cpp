// The table of the statement helpers.
#include "core/helpers.h"
#include "routerdb.h"
#include "support/profile.h"

namespace {

using support::build_profile;

/// Whether a connection that SQLite could not open stays allocated.
constexpr bool abandons = !build_profile.closes_its_own;

constexpr char open_main[] = "sqlite3_open /etc/config/systemconf/database/myrouter.db";
constexpr char open_catalogue[] = "sqlite3_open /etc/config/systemconf/database/dpilib.db";
constexpr char prepare[] = "sqlite3_prepare_v2 select 5;";

constexpr char open_message[] = "cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n";
constexpr char open_log[] = "syslog 3 cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n";
constexpr char execute_message[] = "cannot exec sql cmdline, Error: near \"nonsense\": syntax error\n";
constexpr char execute_no_message[] = "cannot exec sql cmdline, Error: (null)\n";
constexpr char prepare_message[] = "cannot prepare sql cmdline, Error: near \"nonsense\": syntax error\n";
constexpr char prepare_log[] = "syslog 3 cannot prepare sql cmdline, Error: near \"nonsense\": syntax error\n";
constexpr char error[] = "Error: near \"nonsense\": syntax error";
constexpr char webserver_error[] = "Webserver Error: near \"nonsense\": syntax error";

/// For the helpers whose only outcome is their result.
template <int (*function)(const char *)>
Outcome result_of(sqlite3 * /*db*/, const char *sql) {
    return {function(sql), ""};
}

/// For the helpers that fill a number.
template <typename Number, int (*function)(const char *, Number *)>
Outcome result_and_number(sqlite3 * /*db*/, const char *sql) {
    Number number = 1000;
    const int result = function(sql, &number);
    return {result, std::to_string(number)};
}

/// For the helpers that fill a text.
template <typename Function>
Outcome result_and_text(Function function) {
    char text[4096] = "before";
    const long long result = function(text);
    return {result, text};
}

/// Two that execute.
void execute_under_the_lock(Helper &helper) {
    helper.locks = true;
    helper.outcomes = {{0, ""}, {0, ""}, {0, ""}, {0, ""}, {0, ""}, {0, ""}, {0, ""}};
    helper.open_failure = {{-1, ""}, "", open_message, {}};
    helper.statement_failure = {{-1, ""}, execute_message, "", {}};
    helper.held_when_it_prints = "lock";
}

Helper db_sql_exec() {
    Helper helper{{"DbSqlExec",
                   [](sqlite3 * /*db*/, const char *sql) {
                       return Outcome{DbSqlExec(const_cast<char *>(sql)), ""};  // only read
                   }},
                  Delivers::nothing};
    execute_under_the_lock(helper);
    helper.calls = {"open lock file", "draw",          "lock",   open_main,        "sqlite3_exec select 5;",
                    "sqlite3_free",   "sqlite3_close", "unlock", "close lock file"};
    helper.holdings = {"sqlite3_open /etc/config/systemconf/database/myrouter.db: lock", "close lock file: nothing"};
    helper.abandons = abandons;
    return helper;
}

Helper exec_char() {
    Helper helper{{"DB_EXEC_SQL_CHAR", result_of<DB_EXEC_SQL_CHAR>}, Delivers::nothing};
    execute_under_the_lock(helper);
    helper.calls = {"open lock file",
                    "draw",
                    "lock",
                    open_main,
                    support::build_profile.syncs_in_full ? "sqlite3_exec PRAGMA synchronous = FULL; "
                                                         : "sqlite3_exec PRAGMA synchronous = NORMAL; ",
                    "sqlite3_exec PRAGMA page_size = 12000; ",
                    "sqlite3_exec PRAGMA cache_size = 4000; ",
                    "sqlite3_exec select 5;",
                    "sqlite3_free",
                    "sqlite3_close",
                    "unlock",
                    "close lock file"};
    helper.holdings = {"open lock file: mutex",
                       "sqlite3_open /etc/config/systemconf/database/myrouter.db: mutex and lock",
                       "close lock file: mutex", "afterwards: nothing"};
    helper.held_when_it_prints = "mutex and lock";
    helper.statements_ahead = 3;
    helper.sleeps = {5600, 6100, 6600, 7100, 7600, 8100};
    helper.longest_first = 15500;
    return helper;
}

/// Three that read all rows without a lock.
void read_freely(Helper &helper) {
    helper.calls = {open_main, prepare, "sqlite3_step", "sqlite3_step", "sqlite3_finalize", "sqlite3_close"};
    helper.sleeps = {55, 60, 65, 70, 75, 80};
    helper.longest_first = 55;
}

Helper exec_char_int() {
    Helper helper{{"DB_EXEC_SQL_CHAR_INT", result_and_number<unsigned, DB_EXEC_SQL_CHAR_INT>}, Delivers::other};
    read_freely(helper);
    helper.sleeps = {155, 160, 165, 170, 175, 180};
    helper.longest_first = 155;
    helper.outcomes = {{0, "1001"}, {0, "1000"}, {0, "1001"}, {0, "1002"}, {0, "1002"}, {0, "1003"}, {0, "1002"}};
    helper.open_failure = {{-1, "1000"}, "", "", {open_log}};
    helper.abandons = abandons;
    helper.statement_failure = {{0, "1000"}, "", "", {prepare_log}};
    return helper;
}

Helper exec_char_long() {
    Helper helper{{"DB_EXEC_SQL_CHAR_LONG", result_and_number<unsigned long, DB_EXEC_SQL_CHAR_LONG>}, Delivers::other};
    read_freely(helper);
    helper.outcomes = {{0, "5"}, {0, "1000"}, {0, "0"}, {0, "0"}, {0, "4"}, {0, "33"}, {0, "0"}};
    helper.open_failure = {{-1, "1000"}, "", "", {open_log}};
    helper.statement_failure = {{0, "1000"}, "", "", {prepare_log}};
    return helper;
}

Helper exec_char_char() {
    Helper helper{{"DB_EXEC_SQL_CHAR_CHAR",
                   [](sqlite3 *, const char *sql) {
                       return result_and_text([&](char *text) { return DB_EXEC_SQL_CHAR_CHAR(sql, text); });
                   }},
                  Delivers::text};
    read_freely(helper);
    helper.outcomes = {{0, "5"}, {0, "before"}, {0, "before"}, {0, "7"}, {0, "3"}, {0, "31"}, {0, "8"}};
    helper.open_failure = {{-1, "before"}, "", open_message, {}};
    helper.statement_failure = {{0, "before"}, prepare_message, "", {}};
    return helper;
}

/// Two that read all rows under the lock.
void read_under_the_lock(Helper &helper) {
    helper.locks = true;
    helper.calls = {"open lock file", "draw",         "lock",           open_main,
                    prepare,          "sqlite3_step", "sqlite3_step",   "sqlite3_finalize",
                    "sqlite3_close",  "unlock",       "close lock file"};
    helper.holdings = {"sqlite3_open /etc/config/systemconf/database/myrouter.db: lock", "close lock file: nothing"};
    helper.open_failure = {{-1, ""}, "", open_message, {}};
    helper.statement_failure = {{-1, ""}, execute_no_message, "", {}};
    helper.held_when_it_prints = "lock";
}

Helper int_count() {
    Helper helper{{"GET_DB_SQL_INT_COUNT", result_of<GET_DB_SQL_INT_COUNT>}, Delivers::number};
    read_under_the_lock(helper);
    helper.outcomes = {{5, ""}, {0, ""}, {0, ""}, {5, ""}, {5, ""}, {66, ""}, {8, ""}};
    return helper;
}

Helper int_rows() {
    Helper helper{{"GET_DB_SQL_INT", result_of<GET_DB_SQL_INT>}, Delivers::other};
    read_under_the_lock(helper);
    helper.outcomes = {{1, ""}, {0, ""}, {1, ""}, {2, ""}, {2, ""}, {3, ""}, {2, ""}};
    return helper;
}

/// Three that read the first number and say nothing of a database that cannot be opened.
void read_first_number(Helper &helper, const char *open_call) {
    helper.calls = {"draw", open_call, prepare, "sqlite3_step", "sqlite3_finalize", "sqlite3_close"};
    helper.outcomes = {{5, ""}, {0, ""}, {0, ""}, {5, ""}, {1, ""}, {11, ""}, {8, ""}};
    helper.open_failure = {{-1, ""}, "", "", {}};
    helper.abandons = abandons;
    helper.statement_failure = {{-1, ""}, error, "", {}};
}

Helper int_count_route() {
    Helper helper{{"GET_DB_SQL_INT_COUNT_ROUTE", result_of<GET_DB_SQL_INT_COUNT_ROUTE>}, Delivers::number};
    read_first_number(helper, open_main);
    return helper;
}

Helper int_count_dpi() {
    Helper helper{{"GET_DB_SQL_INT_COUNT_DPI", result_of<GET_DB_SQL_INT_COUNT_DPI>}, Delivers::number};
    helper.database = support::catalogue_database;
    read_first_number(helper, open_catalogue);
    return helper;
}

Helper sqlite_int() {
    Helper helper{{"GET_DB_SQLITE_SQL_INT", result_of<GET_DB_SQLITE_SQL_INT>}, Delivers::number};
    helper.database = support::catalogue_database;
    read_first_number(helper, open_catalogue);
    if (!build_profile.closes_its_own) {
        helper.calls.emplace_back("close 0");
    }
    return helper;
}

Helper sqlite_str_n() {
    Helper helper{{"GET_DB_SQLITE_SQL_STR_N",
                   [](sqlite3 *db, const char *sql) {
                       return result_and_text([&](char *text) { return GET_DB_SQLITE_SQL_STR_N(sql, text, db); });
                   }},
                  Delivers::text};
    helper.opens = false;
    helper.calls = {"draw", prepare, "sqlite3_step", "sqlite3_finalize"};
    helper.outcomes = {{0, "5"}, {0, "before"}, {0, "0"}, {0, "5"}, {0, "1"}, {0, "11"}, {0, "8"}};
    helper.statement_failure = {{0xffffffffLL, "before"}, webserver_error, "", {}};
    return helper;
}

}  // namespace

const std::vector<Helper> &helpers() {
    static const std::vector<Helper> helpers{
        db_sql_exec(), exec_char(),       exec_char_int(), exec_char_long(), exec_char_char(), int_count(),
        int_rows(),    int_count_route(), int_count_dpi(), sqlite_int(),     sqlite_str_n(),
    };
    return helpers;
}
