// Where operations find what they work on and leave what they read: the same memory for every variant.
#pragma once

#include "core/paths.h"
#include "routerdb.h"

namespace bench {

struct Desk {
    DevInfo device;     // read by DB_getinfo, written by DB_UpdateInfo and DB_addinfo
    ApDevList devices;  // each record from malloc
    UrlFilterItemList url_filters;
    BehaviorItemList behavior_rules;
    SqlReply reply;  // its data from malloc
};

extern Desk desk;

/// The access point that single records are read from and written to.
inline constexpr unsigned long known_device = 192UL + 168UL * 256 + 65536 + 13UL * 16777216;
inline constexpr char known_device_sql[] = "select * from DevInfo where Dev_Sn='218212544';";
static_assert(known_device == 218212544);

namespace paths = routerdb::paths;

}  // namespace bench
