// Peers in the hands of a daemon: it opens each database once and prepares each statement once.
#pragma once

#include "peers/by_peer.h"

namespace bench::peers {

class KeptSqlite;  // SQLite itself
class KeptSqliteCpp;

#define FOR_EACH_KEPT_WITH(FUNCTION, Database) \
    FUNCTION(get_device, Database)             \
    FUNCTION(get_device_converted, Database)   \
    FUNCTION(list_devices, Database)           \
    FUNCTION(list_url_filters, Database)       \
    FUNCTION(list_behavior_rules, Database)    \
    FUNCTION(print_device_page, Database)      \
    FUNCTION(print_classes, Database)          \
    FUNCTION(print_groups, Database)

#define FOR_EACH_KEPT(FUNCTION)              \
    FOR_EACH_KEPT_WITH(FUNCTION, KeptSqlite) \
    FOR_EACH_KEPT_WITH(FUNCTION, KeptSqliteCpp)

#define DECLARE(function, Database) extern template void function<Database>();
FOR_EACH_KEPT(DECLARE)
#undef DECLARE

}  // namespace bench::peers
