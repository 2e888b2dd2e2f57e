// What a command has come to, and how its user learns of it.
#pragma once

namespace ctl {

/// The exit status of the program.
enum class Status : int {
    done = 0,
    refused = 1,  // also: it differs, it is held
    usage = 2,
    not_found = 3,
    unreachable = 4,  // the service or the database
    unknown = 5,      // it may still happen
};

/// Says on standard error, in one line, why a command does not do what it was asked for.
/// @return the status
[[gnu::format(printf, 2, 3)]] Status fail(Status status, const char *format, ...);

/// Says something on standard error that its user should know, unless messages are not wanted.
[[gnu::format(printf, 1, 2)]] void warn(const char *format, ...);

/// Whether warn() says anything.
void keep_quiet(bool quiet);

}  // namespace ctl
