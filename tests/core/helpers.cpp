#include "core/helpers.h"

#include <fcntl.h>
#include <unistd.h>

#include <stdexcept>

#include "routerdb.h"
#include "support/database.h"

namespace {

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

}  // namespace

bool operator==(const Outcome &left, const Outcome &right) {
    return left.result == right.result && left.destination == right.destination;
}

std::ostream &operator<<(std::ostream &out, const Outcome &outcome) {
    return out << outcome.result << " and \"" << outcome.destination << '"';
}

std::ostream &operator<<(std::ostream &out, const Helper &helper) {
    return out << helper.name;
}

namespace helpers {

constexpr Helper db_sql_exec{"DbSqlExec", [](sqlite3 * /*db*/, const char *sql) {
                                 return Outcome{DbSqlExec(const_cast<char *>(sql)), ""};  // only read
                             }};
constexpr Helper exec_char{"DB_EXEC_SQL_CHAR", result_of<DB_EXEC_SQL_CHAR>};
constexpr Helper exec_char_int{"DB_EXEC_SQL_CHAR_INT", result_and_number<unsigned, DB_EXEC_SQL_CHAR_INT>};
constexpr Helper exec_char_long{"DB_EXEC_SQL_CHAR_LONG", result_and_number<unsigned long, DB_EXEC_SQL_CHAR_LONG>};
constexpr Helper exec_char_char{
    "DB_EXEC_SQL_CHAR_CHAR", [](sqlite3 *, const char *sql) {
        return result_and_text([&](char *text) { return DB_EXEC_SQL_CHAR_CHAR(sql, text); });
    }};
constexpr Helper int_count{"GET_DB_SQL_INT_COUNT", result_of<GET_DB_SQL_INT_COUNT>};
constexpr Helper int_rows{"GET_DB_SQL_INT", result_of<GET_DB_SQL_INT>};
constexpr Helper int_count_route{"GET_DB_SQL_INT_COUNT_ROUTE", result_of<GET_DB_SQL_INT_COUNT_ROUTE>};
constexpr Helper int_count_dpi{"GET_DB_SQL_INT_COUNT_DPI", result_of<GET_DB_SQL_INT_COUNT_DPI>};
constexpr Helper sqlite_int{"GET_DB_SQLITE_SQL_INT", result_of<GET_DB_SQLITE_SQL_INT>};
constexpr Helper sqlite_str_n{
    "GET_DB_SQLITE_SQL_STR_N", [](sqlite3 *db, const char *sql) {
        return result_and_text([&](char *text) { return GET_DB_SQLITE_SQL_STR_N(sql, text, db); });
    }};

}  // namespace helpers

CallersConnection open_callers_connection() {
    sqlite3 *db = nullptr;
    if (sqlite3_open_v2(support::main_database, &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        throw std::runtime_error("cannot open the caller's connection");
    }
    return CallersConnection(db);
}

void open_standard_input() {
    // The lowest free number is the one that is wanted, unless it is taken.
    const int null = open("/dev/null", O_RDONLY);
    if (null != STDIN_FILENO) {
        close(null);
    }
}
