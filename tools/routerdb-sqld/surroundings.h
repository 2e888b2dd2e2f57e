// What the service cannot do without: lock file, databases, tables.
#pragma once

namespace sqld {

/// Tells the system log what of it is missing. It may come while the service runs, which goes on all the same.
void tell_what_is_missing();

}  // namespace sqld
