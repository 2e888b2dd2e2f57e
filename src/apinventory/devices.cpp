#include "apinventory/devices.h"

#include <cstdlib>

#include "core/list_room.h"
#include "core/profiles.h"
#include "core/query.h"
#include "core/reading.h"
#include "text/text.h"

namespace routerdb {

namespace {

using namespace profiles;

constexpr ReadProfile one_device =
    unguarded.sleeping_from(FirstDelay::microseconds_50).when_not_opened(code_in_log).when_not_prepared(prepare_in_log);
constexpr ReadProfile all_devices = unguarded.sleeping_from(FirstDelay::microseconds_50)
                                        .when_not_opened(code_on_error)
                                        .when_not_prepared(prepare_in_log);

// Callers see that the table can be counted, not the count: that takes none of the 160 columns.
constexpr const char *count_text =
    build_profile.names_needed_columns ? "select 1 from DevInfo;" : "select  * from DevInfo;";

/// The list never takes more than it has room for; whether that is told is up to the build profile.
bool has_room(const ApDevList &list, CallErrno &call) {
    return list_takes(list.count, ROUTERDB_DEVICE_LIST_CAPACITY, "DevInfo", call) &&
           list.count < ROUTERDB_DEVICE_LIST_CAPACITY;
}

}  // namespace

int read_device_by_sn(DevInfo &device, unsigned long sn, Ssids ssids) {
    device = {};
    StackText<64> sql;
    sql.append("select * from DevInfo where Dev_Sn=").append_quoted(sn).append(";");
    Reading reading(one_device);
    int count = 0;
    if (reading.start(sql) == Start::ready) {
        while (reading.next_row()) {
            read_members(reading.row(), Table::devices, ssids, device);
            ++count;
        }
    }
    return count;
}

bool read_all_devices(ApDevList &list, Ssids ssids) {
    SharedConnection connection;
    if (try_out(profiles::sql_int, count_text, &connection) < 0) {
        return false;
    }
    list = {};
    Reading reading(all_devices, &connection);
    if (reading.start("select * from DevInfo  order by Dev_IPSUM ;") != Start::ready) {
        return false;
    }
    while (reading.next_row() && has_room(list, reading.call())) {
        auto *device = static_cast<DevInfo *>(std::malloc(sizeof(DevInfo)));
        if (device == nullptr) {
            reading.call().fail(ENOMEM);
            break;
        }
        *device = {};
        read_members(reading.row(), Table::devices, ssids, *device);
        list.devices[list.count++] = device;
    }
    return list.count != 0;
}

void free_devices(ApDevList &list) {
    for (int index = 0; index < static_cast<std::int32_t>(list.count) && index < ROUTERDB_DEVICE_LIST_CAPACITY;
         ++index) {
        std::free(list.devices[index]);
        list.devices[index] = nullptr;
    }
}

}  // namespace routerdb
