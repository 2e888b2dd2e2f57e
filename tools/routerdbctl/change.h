// Changes: exported functions of the library, called in a process of their own, so that nobody waits for ever and none
// of their messages gets into a script's output.
#pragma once

#include "database.h"
#include "options.h"
#include "sql.h"
#include "status.h"

namespace ctl {

/// What a call says when it is over.
enum class Outcome : unsigned char { done, failed, overdue };

/// Whether a call may be ended when its time is over.
enum class WhenOverdue : unsigned char { end, leave };

/// Calls a function in another process.
/// @param call     returns 0 on success
/// @param message  receives what the library has said
Outcome call_apart(int (*call)(void *context), void *context, unsigned seconds, WhenOverdue when_overdue, Sql &message);

/// Executes statements through DbSqlExec(), all of them or none if they are a transaction. One that takes longer than
/// it may is ended: then nothing of it happens later.
/// @return done; refused or unreachable, which fail() has said; unknown, of which nothing has been said: whoever has
///         called looks whether it has happened
Status change(const Invocation &invocation, const char *sql);

/// The same, and looks.
/// @param proof  a query whose first number is not 0 when it has happened
/// @return done; refused, of which nothing has been said, when it has not happened; or what fail() has said
Status change_and_look(const Invocation &invocation, const Database &database, const Sql &sql, const Sql &proof);

/// What has become of a change, or a call, that may have been ended.
/// @param status  what it has come to: done or unknown
/// @param proof   as in change_and_look(), and the result as well
Status look(const Invocation &invocation, const Database &database, Status status, const Sql &proof);

}  // namespace ctl
