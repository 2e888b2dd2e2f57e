// The functions of the direct road that run one statement, a row each: what they do differently from the two profiles
// that they start from.
#pragma once

#include "core/access_profile.h"
#include "core/execute.h"

namespace routerdb::profiles {

/// The collections, whose rows are not delivered.
inline constexpr ExecuteProfile collection{guarded, Pragmas::none};

/// DbSqlExec, which adds the background copy.
inline constexpr ExecuteProfile guarded_execution{guarded.abandoning_failed_handle(), Pragmas::none};

/// DB_EXEC_SQL_CHAR
inline constexpr ExecuteProfile exec_char{guarded.under(Guard::mutex_and_lock_file).sleeping_times(100),
                                          Pragmas::write_tuning};

/// The transaction of a registration. It says nothing: where it fails, DB_EXEC_SQL_CHAR does the same and says it.
inline constexpr ExecuteProfile transaction{unguarded.under(Guard::mutex_and_lock_file).sleeping_times(100),
                                            Pragmas::write_tuning};

/// DB_EXEC_SQL_CHAR_INT
inline constexpr ReadProfile exec_char_int = unguarded.sleeping_from(FirstDelay::microseconds_150)
                                                 .when_busy(Stream::system_log)
                                                 .when_not_opened(code_in_log)
                                                 .abandoning_failed_handle()
                                                 .when_not_prepared(prepare_in_log);

/// DB_EXEC_SQL_CHAR_LONG
inline constexpr ReadProfile exec_char_long =
    unguarded.sleeping_from(FirstDelay::microseconds_50).when_not_opened(code_in_log).when_not_prepared(prepare_in_log);

/// DB_EXEC_SQL_CHAR_CHAR
inline constexpr ReadProfile exec_char_char = unguarded.sleeping_from(FirstDelay::microseconds_50)
                                                  .when_not_opened(code_on_error)
                                                  .when_not_prepared(prepare_on_output);

/// GET_DB_SQL_INT, GET_DB_SQL_INT_COUNT
inline constexpr ReadProfile sql_int = guarded.when_not_prepared(exec_on_output);

/// GET_DB_SQL_INT_COUNT_ROUTE
inline constexpr ReadProfile sql_int_count_route =
    unguarded.abandoning_failed_handle().when_not_prepared(error_on_output);

/// GET_DB_SQL_INT_COUNT_DPI, GET_DB_SQLITE_SQL_INT
inline constexpr ReadProfile sql_int_count_dpi =
    unguarded.on(Database::catalogue).abandoning_failed_handle().when_not_prepared(error_on_output);

}  // namespace routerdb::profiles
