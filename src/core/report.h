// Messages of the direct road: their texts and the streams they go to, said once.
#pragma once

#include <cstdint>

namespace routerdb {

enum class Stream : std::uint8_t { nowhere, standard_output, standard_error, system_log };

enum class Wording : std::uint8_t {
    cannot_open,             // "cannot open %s!\n"
    cannot_open_code,        // "cannot open %s, ErrorCode: %d!\n"
    cannot_exec,             // "cannot exec sql cmdline, Error: %s\n"
    cannot_exec_no_message,  // the same, but never with SQLite's own message
    cannot_prepare,          // "cannot prepare sql cmdline, Error: %s\n"
    busy,                    // "sql busy/locked cmdline, Error: %s\n"
    error,                   // "Error: %s"
    webserver_error,         // "Webserver Error: %s"
};

/// A message as a profile names it.
struct Message {
    Stream stream;
    Wording wording;
};

inline constexpr Message no_message{Stream::nowhere, Wording::error};
inline constexpr Message code_on_error{Stream::standard_error, Wording::cannot_open_code};
inline constexpr Message code_in_log{Stream::system_log, Wording::cannot_open_code};
inline constexpr Message prepare_on_output{Stream::standard_output, Wording::cannot_prepare};
inline constexpr Message prepare_on_error{Stream::standard_error, Wording::cannot_prepare};
inline constexpr Message prepare_in_log{Stream::system_log, Wording::cannot_prepare};
inline constexpr Message exec_on_output{Stream::standard_output, Wording::cannot_exec_no_message};
inline constexpr Message error_on_output{Stream::standard_output, Wording::error};
inline constexpr Message webserver_on_output{Stream::standard_output, Wording::webserver_error};

/// What happened. A wording takes from it what it prints.
struct Failure {
    const char *path;  // file that could not be opened
    int code;          // result code of SQLite
    const char *text;  // message of SQLite; may be null
};

/// Writes a message.
/// @return what the print returned (some callers hand it on); 0 for the system log and for no stream
int report(Message message, const Failure &failure);

}  // namespace routerdb
