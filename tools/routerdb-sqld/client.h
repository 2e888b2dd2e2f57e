// Who is at the other end of a connection, what the log says of it, and the reply that it gets.
#pragma once

#include <sys/types.h>

#include <cstddef>

#include "request.h"

namespace sqld {

struct Client {
    uid_t user;
    pid_t process;
};

Client client_of(int fd);

/// Writes what became of a request to the system log, with user and process of the client.
void tell(const Client &client, const char *outcome);

/// The same for one that is refused.
void tell_refusal(const Client &client, const char *reason);

/// What is done when a client does not take its reply at once.
using OnWait = void (*)(void *context);

/// Sends a reply that echoes the request's table id and operation.
/// @return false if the client has gone or takes more than five seconds, after the reason went to the system log
bool send_reply(int fd, const Request &request, const void *data, std::size_t size, OnWait on_wait, void *context);

}  // namespace sqld
