// What a service manager such as systemd hands over, and what it is told.
#pragma once

namespace sqld::manager {

/// The listening local socket that this process was started with (LISTEN_FDS, LISTEN_PID). Programs that this one
/// starts do not learn of it.
/// @return -1 without one
int take_socket();

/// Remembers where the manager listens (NOTIFY_SOCKET). Programs that this one starts do not.
void take_notify_socket();

/// Tells the manager something, such as "READY=1", if there is one.
void notify(const char *state);

}  // namespace sqld::manager
