// A lease file that the DHCP server has just been asked to write.
#pragma once

#include <cstdio>

#include "core/call_errno.h"

namespace routerdb {

/// The number on the first line of a file; -1 if it cannot be opened.
int read_pid(const char *path);

/// Opens a file and leaves it open, in the profile that does not close its own.
void hold_open(const char *path);

/// Owns the stream of a lease file.
class LeaseFile {
public:
    /// Signals the server, gives it a millisecond, and opens the file. Where the build profile checks the pid file,
    /// only a server is signalled whose file nobody but root, or the caller for a process of his own, can have written.
    /// A failure goes to standard error.
    LeaseFile(const char *path, const char *pid_file);
    LeaseFile(const LeaseFile &) = delete;
    LeaseFile &operator=(const LeaseFile &) = delete;
    ~LeaseFile();

    bool is_open() const { return stream_ != nullptr; }
    FILE *stream() const { return stream_; }

    /// Whoever reads the file says here that it was in vain.
    CallErrno &call() { return call_; }

private:
    CallErrno call_;
    FILE *stream_;
};

}  // namespace routerdb
