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

/// Makes statements fail unless the last one has changed so many rows. Whoever wants to know what its conditions have
/// come to says so: a row that looks as it should may be another program's.
Sql &add_guard(Sql &sql, int rows);

/// Executes statements through DbSqlExec(), all of them or none if they are a transaction. One that takes longer than
/// it may is ended: nothing of it happens later.
/// @param proof  a query whose first number is not 0 when it has happened, asked when it was ended; empty for none
/// @return done; refused, of which nothing has been said, when a guard has failed; or what fail() has said
Status change(const Invocation &invocation, const Database &database, const char *sql, const Sql &proof);

/// Says what has become of something that was ended.
/// @param proof  as in change()
/// @return done, or what fail() has said
Status look(const Invocation &invocation, const Database &database, const Sql &proof);

}  // namespace ctl
