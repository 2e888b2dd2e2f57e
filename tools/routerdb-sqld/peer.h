// The other end of one connection: whole messages, each within a time limit.
#pragma once

#include <cstddef>
#include <cstdint>

namespace sqld {

/// Longest statement that is accepted, in bytes.
inline constexpr std::uint32_t longest_statement = 64 * 1024;

/// One request, its text NUL-terminated.
struct Request {
    std::uint32_t table_id;
    std::uint32_t operation;
    std::uint32_t length;
    char text[longest_statement + 1];
};

/// Writes what became of a request to the system log, with user and process of the peer.
void tell(int fd, const char *outcome);

/// The same for one that is refused.
/// @return false, as whoever refuses does
bool refuse(int fd, const char *reason);

/// Reads a request.
/// @return false for one that is too long, breaks off or takes more than five seconds, after the reason went to the
///         system log
bool receive_request(int fd, Request &request);

/// Sends a reply that echoes the request's table id and operation.
/// @return false if the peer has gone or takes more than five seconds, after the reason went to the system log
bool send_reply(int fd, const Request &request, const void *data, std::size_t size);

}  // namespace sqld
