#include "apinventory/totals.h"

#include "apinventory/numbers.h"
#include "core/profiles.h"
#include "core/query.h"

namespace routerdb {

namespace {

// Nothing is said or left behind here: totals that are not had at once are read one by one, which is said.
constexpr ReadProfile silent_totals = profiles::unguarded.when_not_prepared(no_message);

int read_number(const char *sql, SharedConnection *shared) {
    return first_number(profiles::sql_int_count_route, sql, shared);
}

void read_each(Totals &totals, SharedConnection *shared) {
    totals.devices = read_number("select count(*) from DevInfo where Dev_Ipaddress <> '';", shared);
    totals.online = count_online(shared);
    if (totals.devices > 0) {
        const int first = read_number("select sum(Dev_Wlan_Sta_Num) from DevInfo ;", shared);
        const int second = read_number("select sum(Dev_Wlan_Sta_Num_sec) from DevInfo ;", shared);
        totals.stations = wrapping_sum(first, second);
    }
}

/// Reads all of them by one statement that says nothing when it fails.
/// @return whether they are what the statements one by one would give
bool read_at_once(Totals &totals, SharedConnection *shared) {
    const CallErrno untold;
    Reading reading(silent_totals, shared);
    if (reading.start("select sum(Dev_Ipaddress <> ''),sum(Dev_Status='1'),sum(Dev_Wlan_Sta_Num),"
                      "sum(Dev_Wlan_Sta_Num_sec) from DevInfo;") != Start::ready ||
        !reading.next_row()) {
        return false;
    }
    const Row row = reading.row();
    totals.devices = row.number(0);
    totals.online = row.number(1);
    totals.stations = totals.devices > 0 ? wrapping_sum(row.number(2), row.number(3)) : 0;
    return true;
}

}  // namespace

Totals read_totals(SharedConnection &connection) {
    Totals totals{};
    if (!build_profile.merges_totals || !read_at_once(totals, &connection)) {
        read_each(totals, &connection);
    }
    return totals;
}

int count_online(SharedConnection *shared) {
    return read_number("select count(*) from DevInfo  where Dev_Status='1';", shared);
}

}  // namespace routerdb
