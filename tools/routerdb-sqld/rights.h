// Whose rights the service has.
#pragma once

namespace sqld {

/// Finds a group's number.
/// @return false if there is none of that name
bool find_group(const char *name, unsigned &group);

/// Whether there is a user of that name.
bool is_user(const char *name);

/// Gives up all rights but those of a user and the user's groups.
/// @return false after the reason went to the system log
bool become_user(const char *name);

}  // namespace sqld
