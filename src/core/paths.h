// The fixed paths. They are compiled in: nothing configures them.
#pragma once

namespace routerdb::paths {

inline constexpr char main_database[] = "/etc/config/systemconf/database/myrouter.db";
inline constexpr char main_journal[] = "/etc/config/systemconf/database/myrouter.db-journal";
inline constexpr char main_write_ahead_log[] = "/etc/config/systemconf/database/myrouter.db-wal";
inline constexpr char main_directory[] = "/etc/config/systemconf/database";
inline constexpr char catalogue_database[] = "/etc/config/systemconf/database/dpilib.db";
inline constexpr char lock_file[] = "/var/databaselock";
inline constexpr char backup_directory[] = "/var/tmpconfig/database";
inline constexpr char backup_database[] = "/var/tmpconfig/database/myrouter.db";
inline constexpr char factory_database[] = "/rom/etc/config/systemconf/database/myrouter.db";
inline constexpr char factory_catalogue[] = "/rom/etc/config/systemconf/database/dpilib.db";
inline constexpr char send_event[] = "/bin/send_event";
inline constexpr char station_trace[] = "/tmp/sta_log";
inline constexpr char station_list_start[] = "/var/stalist_";  // and a number
inline constexpr char text_leases[] = "/var/dhcp.leases";
inline constexpr char dhcp_server_pid[] = "/var/run/dnsmasq/dnsmasq.pid";
inline constexpr char service_socket[] = "/var/sqlserver_socket";
inline constexpr char new_service_socket[] = "/var/sqlserver_socket.new";  // until it can be connected to
inline constexpr char service_lock[] = "/var/sqlserver_socket.lock";       // held by the service that runs

}  // namespace routerdb::paths
