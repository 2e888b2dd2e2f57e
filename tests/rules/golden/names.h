// Names that builders find outside the main database: those of hosts in the leases, those of classes and applications
// in the catalogue.
#pragma once

#include "rules/golden/samples.h"

namespace golden {

/// Leases in which no rule finds its address.
inline constexpr char other_lease[] = "1700000000 66:77:88:99:AA:BB 192.168.1.30 camera\n";

/// Every way in which a rule comes by the name of its host, and by those of its applications, or by none; nothing for a
/// table whose rules have no such names.
std::vector<Built> with_host_names(const Table &table);
std::vector<Built> with_application_names(const Table &table);

}  // namespace golden
