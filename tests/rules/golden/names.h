// Names that builders find outside the main database: those of hosts in the leases, those of classes and applications
// in the catalogue.
#pragma once

#include "rules/golden/golden.h"
#include "support/record.h"

namespace golden {

/// Inserts row 8 of a table with one value, which stands there as SQL.
using InsertValue = std::function<std::string(const std::string &value)>;

/// Leases in which no rule finds its address.
inline constexpr char other_lease[] = "1700000000 66:77:88:99:AA:BB 192.168.1.30 camera\n";

/// Where a record holds an address and its name.
struct HostPlaces {
    std::size_t mac;
    std::size_t name;
};

/// Every way in which a rule comes by the name of its host, or by none.
/// @param insert  a row with an address
/// @param record  of that row, its address left out
std::vector<Built> with_host_names(const InsertValue &insert, const support::Record &record, const HostPlaces &places);

/// Where a record holds what applications it is about, and their names.
struct NamePlaces {
    std::size_t info;
    std::size_t names;
    std::size_t names_en;
};

/// Every way in which a rule comes by the names of its applications, or by none. The three fields have 2048 bytes.
/// @param insert  a row with classes and features
/// @param record  of that row, its classes and features left out
std::vector<Built> with_application_names(const InsertValue &insert, const support::Record &record,
                                          const NamePlaces &places);

}  // namespace golden
