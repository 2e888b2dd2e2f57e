// Small statements on access points: status, identity, counts. Those that read may be part of a call that shares its
// connection.
#pragma once

#include <cstdint>

#include "core/query.h"
#include "core/shared_connection.h"
#include "text/text.h"

namespace routerdb {

/// The column that tells an access point.
enum class LookupKey : std::uint8_t { mac, ip };

/// Sets the status; going offline clears the station counts.
void set_status(LookupKey key, const char *value, const char *status);

/// Reads a column of the access point with a MAC address; "0" without one.
void read_status(const char *column, const char *mac, TextRoom out);

/// Reads the MAC address of a serial number; untouched without a row.
void read_mac(unsigned long sn, TextRoom out);

/// Reads the serial number of an access point; untouched without a row.
void read_sn(LookupKey key, std::string_view value, Quotes quotes, unsigned long &sn,
             SharedConnection *shared = nullptr);

/// Sets the upgrade status and announces the change.
void set_upgrade_status(const char *mac, const char *status);

/// Rows of a table of the main database; 0 when they cannot be read.
int rows_in_table(const char *table, SharedConnection *shared = nullptr);

/// The same for a table that a caller names.
int rows_in_named_table(const char *name);

}  // namespace routerdb
