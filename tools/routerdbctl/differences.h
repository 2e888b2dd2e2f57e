// How the tables of two databases differ.
#pragma once

#include "database.h"
#include "options.h"

namespace ctl {

/// Puts what differs between "main" and what has been attached as "other" into a list. Rows are the same by their
/// number in the file, columns by their name; keys of networks are not shown.
/// @param from, to  "main" and "other", or the other way round
/// @param names     tables to look at; all of them if there are none
Status compare(Database &database, const char *from, const char *to, char **names, int count);

/// Prints the list that compare() has made.
/// @param differs  whether it has anything in it
Status print_differences(const Invocation &invocation, const Database &database, bool &differs);

}  // namespace ctl
