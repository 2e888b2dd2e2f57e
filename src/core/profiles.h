// The functions of the direct road that run one statement, a row each. What a row does not show does not differ.
#pragma once

#include "core/execute.h"
#include "core/query.h"

namespace routerdb::profiles {

namespace parts {

inline constexpr Message code_on_error{Stream::standard_error, Wording::cannot_open_code};
inline constexpr Message code_in_log{Stream::system_log, Wording::cannot_open_code};
inline constexpr Message prepare_on_output{Stream::standard_output, Wording::cannot_prepare};
inline constexpr Message prepare_in_log{Stream::system_log, Wording::cannot_prepare};
inline constexpr Message exec_on_output{Stream::standard_output, Wording::cannot_exec_no_message};
inline constexpr Message error_on_output{Stream::standard_output, Wording::error};
inline constexpr Message webserver_on_output{Stream::standard_output, Wording::webserver_error};

// How each reaches its database:
// database, guard, first delay, drawn, scale of the sleeps, told when busy, told without lock file, told when the
// database cannot be opened, what becomes of that handle

// clang-format off
inline constexpr AccessProfile guarded{
    Database::main, Guard::lock_file, FirstDelay::random, Draw::after_opening_lock_file, 1,
    Stream::nowhere, Stream::standard_error, code_on_error, FailedHandle::closed};
inline constexpr AccessProfile guarded_leaving_failed_handle{
    Database::main, Guard::lock_file, FirstDelay::random, Draw::after_opening_lock_file, 1,
    Stream::nowhere, Stream::standard_error, code_on_error, FailedHandle::abandoned};
inline constexpr AccessProfile guarded_among_threads{
    Database::main, Guard::mutex_and_lock_file, FirstDelay::random, Draw::after_opening_lock_file, 100,
    Stream::nowhere, Stream::standard_error, code_on_error, FailedHandle::closed};
inline constexpr AccessProfile free_logging_waits{
    Database::main, Guard::none, FirstDelay::microseconds_150, Draw::after_opening_lock_file, 1,
    Stream::system_log, Stream::nowhere, code_in_log, FailedHandle::abandoned};
inline constexpr AccessProfile free_logging{
    Database::main, Guard::none, FirstDelay::microseconds_50, Draw::after_opening_lock_file, 1,
    Stream::nowhere, Stream::nowhere, code_in_log, FailedHandle::closed};
inline constexpr AccessProfile free_printing{
    Database::main, Guard::none, FirstDelay::microseconds_50, Draw::after_opening_lock_file, 1,
    Stream::nowhere, Stream::nowhere, code_on_error, FailedHandle::closed};
inline constexpr AccessProfile free_printing_random{
    Database::main, Guard::none, FirstDelay::random, Draw::after_opening_lock_file, 1,
    Stream::nowhere, Stream::nowhere, code_on_error, FailedHandle::closed};
inline constexpr AccessProfile free_silent{
    Database::main, Guard::none, FirstDelay::random, Draw::after_opening_lock_file, 1,
    Stream::nowhere, Stream::nowhere, no_message, FailedHandle::abandoned};
inline constexpr AccessProfile free_silent_catalogue{
    Database::catalogue, Guard::none, FirstDelay::random, Draw::after_opening_lock_file, 1,
    Stream::nowhere, Stream::nowhere, no_message, FailedHandle::abandoned};
// clang-format on

}  // namespace parts

using namespace parts;

/// The collections, whose rows are not delivered.
inline constexpr ExecuteProfile collection{guarded, Pragmas::none};

/// DbSqlExec, which adds the background copy.
inline constexpr ExecuteProfile guarded_execution{guarded_leaving_failed_handle, Pragmas::none};

// clang-format off
/// The statement helpers that open a database: access, told when the text cannot be prepared; rows, result then, standard
/// input.
/// DB_EXEC_SQL_CHAR
inline constexpr ExecuteProfile exec_char         {guarded_among_threads, Pragmas::write_tuning};
/// DB_EXEC_SQL_CHAR_INT
inline constexpr QueryProfile exec_char_int       {{free_logging_waits, prepare_in_log}, Rows::counted_up, 0, StandardInput::kept};
/// DB_EXEC_SQL_CHAR_LONG
inline constexpr QueryProfile exec_char_long      {{free_logging, prepare_in_log}, Rows::last_diagonal, 0, StandardInput::kept};
/// DB_EXEC_SQL_CHAR_CHAR
inline constexpr QueryProfile exec_char_char      {{free_printing, prepare_on_output}, Rows::last_text, 0, StandardInput::kept};
/// GET_DB_SQL_INT_COUNT
inline constexpr QueryProfile sql_int_count       {{guarded, exec_on_output}, Rows::summed_diagonal, -1, StandardInput::kept};
/// GET_DB_SQL_INT
inline constexpr QueryProfile sql_int             {{guarded, exec_on_output}, Rows::counted, -1, StandardInput::kept};
/// the same statement for nothing but that it can be prepared, which the list of access points goes by
inline constexpr QueryProfile sql_int_unseen      {{guarded, exec_on_output}, Rows::unseen, -1, StandardInput::kept};
/// the same statement for its first number instead of its rows, which the zero-configuration groups go by
inline constexpr QueryProfile sql_int_first_number{{guarded, exec_on_output}, Rows::first_number, -1, StandardInput::kept};
/// GET_DB_SQL_INT_COUNT_ROUTE
inline constexpr QueryProfile sql_int_count_route {{free_silent, error_on_output}, Rows::first_number, -1, StandardInput::kept};
/// GET_DB_SQL_INT_COUNT_DPI
inline constexpr QueryProfile sql_int_count_dpi   {{free_silent_catalogue, error_on_output}, Rows::first_number, -1, StandardInput::kept};
/// GET_DB_SQLITE_SQL_INT
inline constexpr QueryProfile sqlite_sql_int      {{free_silent_catalogue, error_on_output}, Rows::first_number, -1, StandardInput::closed};
// clang-format on

}  // namespace routerdb::profiles
