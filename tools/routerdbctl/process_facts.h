// What /proc says of a process.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>

namespace ctl {

struct ProcessFacts {
    pid_t id;
    uid_t user;
    std::int64_t started;  // in seconds since 1970
    char name[20];         // of its program
    char command[200];     // the name with the arguments
};

/// @return false if there is no such process, or none that can be seen
bool read_process_facts(pid_t id, ProcessFacts &facts);

/// The name of a user, or the number of one without a name. It is there until the next call.
const char *name_of_user(uid_t user);

/// Reads a small file, or its beginning.
/// @return the bytes that were read, behind which there is a terminator
std::size_t read_small_file(const char *path, char *text, std::size_t size);

}  // namespace ctl
