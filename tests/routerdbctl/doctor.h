// What the doctor says of one check.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace support {

/// The line of a check, such as "ok    access-points  0 of 20", on which numbers of bytes and of KiB read "N".
std::string doctor_line(const std::string &check, const std::vector<std::string> &arguments = {"doctor"});

/// The same for several checks, in the order in which they come.
std::vector<std::string> doctor_lines(const std::vector<std::string> &checks,
                                      const std::vector<std::string> &arguments = {"doctor"});

/// Replaces numbers before " bytes" and " KiB".
std::string without_sizes(const std::string &text);

/// Whose files they are that the test makes.
std::string own_user();

/// A process as the doctor names it, such as "process 7 (routerdb-sqld) of root".
std::string named(pid_t process);

}  // namespace support
