#include "apinventory/groups.h"

#include "apinventory/member_reader.h"
#include "apinventory/status.h"
#include "core/reading.h"
#include "text/text.h"

namespace routerdb {

namespace {

using namespace profiles;

constexpr ReadProfile group_from_random_delay =
    unguarded.when_not_opened(code_on_error).when_not_prepared(prepare_on_output);
constexpr ReadProfile group = unguarded.sleeping_from(FirstDelay::microseconds_50)
                                  .when_not_opened(code_on_error)
                                  .when_not_prepared(prepare_on_output);

/// Reads all rows, so that the values of the last one stay.
Start read_rows(Reading &reading, const Text &sql, Table table, Ssids ssids, DevInfo &record) {
    const Start start = reading.start(sql);
    if (start == Start::ready) {
        while (reading.next_row()) {
            read_members(reading.row(), table, ssids, record);
        }
    }
    return start;
}

}  // namespace

int read_wlan_group(DevInfo &record, int id) {
    record = {};
    StackText<80> sql;
    sql.append("select * from WlanGroupInfo where WlanGroup_Id=").append_quoted(long{id}).append(";");
    Reading reading(group);
    const Start start = read_rows(reading, sql, Table::wlan_groups, Ssids::in_gb2312, record);
    return start == Start::not_opened ? reading.printed() : reading.close().connection;
}

int read_default_zero_config(DevInfo &record) {
    SharedConnection connection;
    if (rows_in_table("WlanZeroCfgGroupInfo", &connection) == 0) {
        return 0;
    }
    record = {};
    StackText<80> sql;
    sql.append("select * from WlanZerocfgGroupInfo where WlanGroup_Id='1';");  // spelled so here; SQLite does not mind
    Reading reading(group, &connection);
    const Start start = read_rows(reading, sql, Table::zero_config_groups, Ssids::in_gb2312, record);
    return start == Start::not_opened ? reading.printed() : 1;
}

int read_zero_config(DevInfo &record, int id) {
    record = {};
    StackText<80> sql;
    sql.append("select * from WlanZeroCfgGroupInfo where WlanGroup_Id=").append_quoted(long{id}).append(";");
    Reading reading(group_from_random_delay);
    // Deliberate: here the SSIDs stay as they are stored, in the default group they do not.
    const Start start = read_rows(reading, sql, Table::zero_config_groups, Ssids::as_stored, record);
    return start == Start::not_opened ? -1 : 0;
}

}  // namespace routerdb
